#include "verification/dialogs/frmVerify.h"

#include "ui_frmVerify.h"

namespace quillford {

namespace {

constexpr int GapUnderText = 18;
constexpr int GapUnderStatus = 20;
// Heights of the form below its title, in the design's pixels.
constexpr int AskingHeight = 135;
constexpr int RunningHeight = 160;
constexpr qint64 PauseMilliseconds = 2000;

} // namespace

frmVerify::frmVerify(QWidget* parent, const ProjectFields& fields, VerificationState& state,
                     Clock& clock, const mdlSystem& system)
    : FormDialog(parent),
      ui_(new Ui::frmVerify),
      state_(state),
      clock_(clock),
      system_(system),
      run_(fields, state, *this) {
    ui_->setupUi(this);
    setTitle(QStringLiteral("Verify Final Draft?"));
    for (QWidget* part :
         {static_cast<QWidget*>(ui_->lblVerificationStatus),
          static_cast<QWidget*>(ui_->prgCompletePercent), static_cast<QWidget*>(ui_->lbPercent),
          static_cast<QWidget*>(ui_->lblComplete)})
        part->hide();
    const int top = ui_->lblVerifyFinalDraft->geometry().bottom() + 1 + GapUnderText;
    for (myImageButton* button : {ui_->cmdVerify, ui_->cmdSkip, ui_->cmdCancel})
        button->move(button->x(), top);
    resize(width(), TitleHeight + AskingHeight);
    connect(ui_->cmdVerify, &myImageButton::clicked, this, &frmVerify::cmdVerify);
    connect(ui_->cmdSkip, &myImageButton::clicked, this, [this] { end(Answer::Skip); });
    connect(ui_->cmdCancel, &myImageButton::clicked, this, &frmVerify::cmdCancel);
}

frmVerify::~frmVerify() = default;

frmVerify::Answer frmVerify::ask() {
    ui_->cmdVerify->setFocus();
    exec();
    return answer_;
}

void frmVerify::cmdVerify() {
    running_ = true;
    const VerifyOutcome outcome = run_.cmdVerify();
    running_ = false;
    if (outcome == VerifyOutcome::Stopped)
        return end(Answer::Cancel);
    end(outcome == VerifyOutcome::Successful ? Answer::Successful : Answer::Errors);
}

/// A run that is going on comes to its own end, at the next panel or wait, and ends the form then.
void frmVerify::cmdCancel() {
    run_.cmdCancel(ui_->prgCompletePercent->isVisible());
    if (running_)
        hide();
    else
        end(Answer::Cancel);
}

void frmVerify::end(Answer answer) {
    answer_ = answer;
    done(Accepted);
}

void frmVerify::showStatus() {
    setTitle(QStringLiteral("Verification Process Status"));
    for (myImageButton* button : {ui_->cmdVerify, ui_->cmdSkip}) {
        button->hide();
        button->setEnabled(false);
    }
    ui_->lblVerifyFinalDraft->setText(QStringLiteral(
        "Quillford is verifying the data you entered to determine if you have entered all of the "
        "Main Elements, Sub-Elements and Reference Numerals.  Please be patient as this may take a "
        "few minutes."));
    resize(width(), TitleHeight + RunningHeight);
    ui_->lblVerificationStatus->show();
    ui_->lbPercent->show();
    ui_->lblComplete->show();
    ui_->cmdCancel->move(ui_->cmdSkip->x(),
                         ui_->lblVerificationStatus->geometry().bottom() + 1 + GapUnderStatus);
    ui_->prgCompletePercent->show();
    ui_->cmdCancel->setFocus();
}

void frmVerify::pause() {
    const qint64 start = clock_.milliseconds();
    const auto length = static_cast<qint64>(PauseMilliseconds * clock_.pace());
    do {
        clock_.letEventsRun(start + length - clock_.milliseconds());
    } while (clock_.milliseconds() - start < length && state_.verifyState != StopRequest::Exit &&
             !system_.exiting);
}

void frmVerify::setBarMaximum(int maximum) {
    ui_->prgCompletePercent->setMaximum(maximum);
}

void frmVerify::setBarValue(int value) {
    ui_->prgCompletePercent->setValue(value);
}

void frmVerify::setPercentText(const QString& text) {
    ui_->lbPercent->setText(text);
}

} // namespace quillford
