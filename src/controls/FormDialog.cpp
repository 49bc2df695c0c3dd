#include "controls/FormDialog.h"

#include "controls/ClickLabel.h"
#include "controls/RoundedOutline.h"
#include "controls/Theme.h"
#include "controls/TitleStrip.h"
#include "controls/WindowDrag.h"

#include <QPainter>

namespace quillford {

FormDialog::FormDialog(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint),
      title_(new QLabel(this)),
      close_(new ClickLabel(this)) {
    title_->setObjectName(QStringLiteral("lblTitleBar"));
    title_->setTextFormat(Qt::PlainText);
    title_->setIndent(12);
    title_->setFont(theme::headingFont());
    close_->setObjectName(QStringLiteral("lblClose"));
    close_->setText(QStringLiteral("×"));
    close_->setAccessibleName(QStringLiteral("Close"));
    close_->setAlignment(Qt::AlignCenter);
    close_->setFont(theme::headingFont());
    for (QLabel* label : {title_, static_cast<QLabel*>(close_)}) {
        QPalette colours = label->palette();
        colours.setColor(QPalette::WindowText, theme::White);
        label->setPalette(colours);
    }
    new WindowDrag(*title_);
    connect(close_, &ClickLabel::clicked, this, &QDialog::reject);
}

void FormDialog::setTitle(const QString& title) {
    setWindowTitle(title);
    title_->setText(title);
}

void FormDialog::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    title_->setGeometry(0, 0, width(), TitleHeight);
    close_->setGeometry(width() - 36, 0, 36, TitleHeight);
    setMask(roundedOutline(size()));
}

void FormDialog::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), theme::Window);
    paintTitleStrip(painter, QRect(0, 0, width(), TitleHeight));
    paintOutline(painter, rect());
}

} // namespace quillford
