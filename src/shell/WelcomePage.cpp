#include "shell/WelcomePage.h"

#include "controls/ControlArrays.h"
#include "controls/HandCursor.h"
#include "controls/Picture.h"
#include "controls/Theme.h"
#include "core/wizard/FocusOrder.h"
#include "ui_WelcomePage.h"

#include <QLabel>

namespace quillford {

namespace {

constexpr int FirstRowTop = 264;
constexpr int RowPitch = 26;

/// What can be clicked looks like a link, shows the hand and is reached by the Tab key.
void makeCommand(ClickLabel& label) {
    theme::colour(label, theme::Heading);
    label.setFont(theme::fieldFont());
    label.setCursor(handCursor());
    label.setFocusPolicy(Qt::StrongFocus);
}

} // namespace

WelcomePage::WelcomePage(QWidget& form)
    : QObject(&form), page_(form.findChild<QWidget*>(QStringLiteral("picWelcomePage"))) {
    const auto designed = fillPanel<Ui::WelcomePage>(*page_);
    page_->setAutoFillBackground(true);
    theme::makeHeadings(*page_, {u"lblWelcomeRecent", u"lblWelcomeHelpHeading"});
    QFont large = theme::headingFont();
    large.setPixelSize(22);
    designed.lblWelcome->setFont(large);
    theme::colour(*designed.lblWelcome, theme::Heading);
    theme::colour(*designed.lnWelcome, theme::Line);
    for (QLabel* text : {designed.lblWelcomeText, designed.lblWelcomeHelp_0,
                         designed.lblWelcomeService_3, designed.lblWelcomeService_4})
        text->setFont(theme::fieldFont());
    more_ = designed.imgMoreObjects;
    rows_.append(designed.lblRecentPatents_0);
    for (ClickLabel* command : {rows_.first(), more_})
        makeCommand(*command);
    for (Picture* picture : {designed.imgWelcomeButton_0, designed.imgWelcomeButton_1})
        picture->setCursor(handCursor());
    rows_.first()->setFont(theme::headingFont());
    connect(rows_.first(), &ClickLabel::clicked, this, &WelcomePage::newWanted);
    connect(designed.imgWelcomeButton_0, &ClickLabel::clicked, this, &WelcomePage::newWanted);
    connect(designed.imgWelcomeButton_1, &ClickLabel::clicked, this, &WelcomePage::openWanted);
    connect(more_, &ClickLabel::clicked, this, &WelcomePage::openWanted);
    hide();
}

void WelcomePage::show() {
    page_->raise();
    page_->setEnabled(true);
    page_->show();
    rows_.first()->setFocus(Qt::OtherFocusReason);
}

void WelcomePage::hide() {
    page_->hide();
    page_->setEnabled(false);
}

void WelcomePage::setRecentProjects(const QList<QString>& captions) {
    while (rows_.size() > captions.size() + 1)
        dropRow();
    while (rows_.size() < captions.size() + 1)
        rows_.append(makeRow(static_cast<int>(rows_.size())));
    for (qsizetype i = 0; i < captions.size(); ++i) {
        ClickLabel& row = *rows_[i + 1];
        row.setText(row.fontMetrics().elidedText(captions[i], Qt::ElideMiddle, row.width()));
        row.setAccessibleName(captions[i]);
        theme::setPlainToolTip(row, captions[i]);
    }
    more_->move(more_->x(), FirstRowTop + static_cast<int>(captions.size()) * RowPitch);
}

/// The row may be dropped by what its own click has started.
void WelcomePage::dropRow() {
    ClickLabel* row = rows_.takeLast();
    row->setObjectName(QString());
    row->hide();
    row->deleteLater();
}

ClickLabel* WelcomePage::makeRow(int row) {
    auto* label = new ClickLabel(page_);
    label->setObjectName(controlName(u"lblRecentPatents", row));
    makeCommand(*label);
    label->setGeometry(more_->x(), FirstRowTop + (row - 1) * RowPitch, 410, 18);
    label->show();
    connect(label, &ClickLabel::clicked, this, [this, row] { Q_EMIT recentWanted(row); });
    return label;
}

} // namespace quillford
