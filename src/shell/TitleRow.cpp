#include "shell/TitleRow.h"

#include "controls/Theme.h"
#include "platform/TextMeasure.h"

#include <QLabel>

namespace quillford {

TitleRow::TitleRow(QWidget& form)
    : QObject(&form),
      form_(form),
      caption_(form.findChild<QLabel*>(QStringLiteral("lblCaption"))),
      title_(form.findChild<QLabel*>(QStringLiteral("lblTitleInvention"))),
      saveState_(form.findChild<QLabel*>(QStringLiteral("lblSaveState"))) {
    for (QLabel* label : {caption_, title_, saveState_}) {
        label->setTextFormat(Qt::PlainText);
        theme::colour(*label, theme::White);
    }
    saveState_->setWordWrap(true); // the strip has room for two lines, one for what and one for why
    QFont bold = theme::fieldFont();
    bold.setBold(true);
    caption_->setFont(bold);
}

/// Every save tells the caption anew, and fitting the same one in again would take a tenth of it.
void TitleRow::setCaption(const QString& caption) {
    if (caption == form_.windowTitle())
        return;
    form_.setWindowTitle(caption);
    caption_->setText(
        caption_->fontMetrics().elidedText(caption, Qt::ElideMiddle, caption_->width()));
    theme::setPlainToolTip(*caption_, caption);
}

void TitleRow::showTitleInvention(const QString& caption) {
    title_->setText(caption);
}

void TitleRow::showSaveState(const QString& text) {
    saveState_->setText(text);
    theme::setPlainToolTip(*saveState_, text);
}

QString TitleRow::saveState() const {
    return saveState_->text();
}

} // namespace quillford
