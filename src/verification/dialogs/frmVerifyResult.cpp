#include "verification/dialogs/frmVerifyResult.h"

#include "controls/HandCursor.h"
#include "controls/Theme.h"
#include "ui_frmVerifyResult.h"

#include <QWheelEvent>

#include <algorithm>

namespace quillford {

namespace {

constexpr int TwipsPerPixel = 15;
constexpr int GapUnderAllClear = 15;
constexpr int GapAroundReport = 10;
constexpr int GapBetweenButtons = 6;

int bottomOf(const QWidget& widget) {
    return widget.y() + widget.height();
}

/// A label takes the height of its wrapped text.
void fitHeight(QLabel& label) {
    label.resize(label.width(), label.heightForWidth(label.width()));
}

} // namespace

frmVerifyResult::frmVerifyResult(QWidget* parent, const TextMeasure& measure, QFont font)
    : FormDialog(parent), ui_(new Ui::frmVerifyResult), measure_(measure), font_(std::move(font)) {
    ui_->setupUi(this);
    theme::makeHeading(*ui_->lblReport);
    connect(ui_->cmdContinue, &myImageButton::clicked, this, [this] { end(Answer::Continue); });
    connect(ui_->cmdCancel, &myImageButton::clicked, this, [this] { end(Answer::Cancel); });
    connect(ui_->cmdReturnToProject, &myImageButton::clicked, this,
            [this] { end(Answer::ReturnToProject); });
    connect(ui_->imgReportPrint, &ClickLabel::clicked, this,
            [this] { Q_EMIT imgReportPrint_Click(lists_); });
    connect(ui_->VScroll1, &QScrollBar::valueChanged, this,
            [this](int value) { ui_->picErrorReport->move(0, -value); });
    connect(ui_->picErrorReport, &ReportSurface::entryMarked, this,
            &frmVerifyResult::bringIntoView);
    connect(ui_->picErrorReport, &ReportSurface::entryActivated, this, [this](qsizetype entry) {
        cell_ = report_.cells[entry];
        end(Answer::GoToCell);
    });
}

frmVerifyResult::~frmVerifyResult() = default;

frmVerifyResult::Answer frmVerifyResult::showVerificationSuccessful() {
    setTitle(QStringLiteral("Verification Successful!"));
    for (QWidget* part : std::initializer_list<QWidget*>{
             ui_->lblReport, ui_->imgReportPrint, ui_->imgExclamation, ui_->picErrorReportContainer,
             ui_->VScroll1, ui_->Label1, ui_->cmdReturnToProject})
        part->hide();
    fitHeight(*ui_->lblVerifyResult);
    const int top = bottomOf(*ui_->lblVerifyResult) + GapUnderAllClear;
    ui_->cmdContinue->move(width() / 3 + 20 - ui_->cmdContinue->width() / 2, top);
    ui_->cmdCancel->move(ui_->cmdContinue->x() + ui_->cmdContinue->width() + GapBetweenButtons,
                         top);
    resize(width(), bottomOf(*ui_->cmdContinue) + GapUnderAllClear);
    ui_->cmdContinue->setFocus();
    return ask();
}

frmVerifyResult::Answer frmVerifyResult::showVerificationErrors(MissingLists& lists) {
    setTitle(QStringLiteral("Verification Found Possible Errors"));
    ui_->lblVerifyResult->setText(
        QStringLiteral("Quillford was unable to find the following in your Final Draft and "
                       "therefore appear to be missing (or misspelled)."));
    fitHeight(*ui_->lblVerifyResult);
    ui_->imgReportPrint->setCursor(handCursor());
    lists_ = lists;
    lists.clear();
    drawReport();
    const int textBottom =
        std::max(bottomOf(*ui_->lblVerifyResult), bottomOf(*ui_->imgExclamation));
    ui_->lblReport->move(ui_->lblReport->x(), textBottom + GapAroundReport);
    ui_->imgReportPrint->move(ui_->imgReportPrint->x(), ui_->lblReport->y());
    placeReport(bottomOf(*ui_->lblReport) + GapAroundReport / 2);
    ui_->cmdReturnToProject->setFocus();
    return ask();
}

void frmVerifyResult::drawReport() {
    report_ = layOutReport(lists_, ui_->picErrorReport->width(), measure_);
    ui_->picErrorReport->draw(report_, font_, measure_.lineHeight());
    const int height = std::min(report_.height, ReportViewHeight);
    const bool scrolls = report_.height > ReportViewHeight;
    ui_->picErrorReportContainer->resize(ui_->picErrorReportContainer->width(), height);
    ui_->VScroll1->resize(ui_->VScroll1->width(), height);
    ui_->VScroll1->setMaximum(scrolls ? report_.height - ReportViewHeight : 0);
    ui_->VScroll1->setPageStep(ReportViewHeight);
    ui_->VScroll1->setSingleStep(measure_.lineHeight());
    ui_->VScroll1->setVisible(scrolls);
}

void frmVerifyResult::placeReport(int top) {
    ui_->picErrorReportContainer->move(ui_->picErrorReportContainer->x(), top);
    ui_->VScroll1->move(ui_->VScroll1->x(), top);
    ui_->Label1->move(ui_->Label1->x(), bottomOf(*ui_->picErrorReportContainer) + GapAroundReport);
    fitHeight(*ui_->Label1);
    const int buttonTop = bottomOf(*ui_->Label1) + GapAroundReport;
    int left = ui_->Label1->x();
    for (myImageButton* button : {ui_->cmdContinue, ui_->cmdCancel, ui_->cmdReturnToProject}) {
        button->move(left, buttonTop);
        left += button->width() + GapBetweenButtons;
    }
    const int parts = ui_->lblVerifyResult->height() + ui_->picErrorReportContainer->height() +
                      ui_->Label1->height();
    const int told = TitleHeight + 2600 / TwipsPerPixel + parts - 52;
    resize(width(), std::max(told, bottomOf(*ui_->cmdContinue) + GapAroundReport));
}

void frmVerifyResult::bringIntoView(int top, int bottom) {
    QScrollBar& bar = *ui_->VScroll1;
    if (top < bar.value())
        bar.setValue(top);
    else if (bottom > bar.value() + ReportViewHeight)
        bar.setValue(bottom - ReportViewHeight);
}

/// A touch pad turns in fractions of a notch; they are gathered until a whole one is there.
void frmVerifyResult::wheelEvent(QWheelEvent* event) {
    constexpr int NotchAngle = 120;
    turned_ += event->angleDelta().y();
    const int notches = turned_ / NotchAngle;
    turned_ -= notches * NotchAngle;
    QScrollBar& bar = *ui_->VScroll1;
    if (bar.isVisible())
        bar.setValue(bar.value() - notches * bar.pageStep());
    event->accept();
}

frmVerifyResult::Answer frmVerifyResult::ask() {
    answer_ = Answer::Cancel;
    exec();
    return answer_;
}

void frmVerifyResult::end(Answer answer) {
    answer_ = answer;
    done(Accepted);
}

} // namespace quillford
