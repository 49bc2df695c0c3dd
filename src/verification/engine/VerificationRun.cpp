#include "verification/engine/VerificationRun.h"

#include "verification/engine/EnterBoxText.h"
#include "verification/engine/VerifyPass.h"

namespace quillford {

VerificationRun::VerificationRun(const ProjectFields& fields, VerificationState& state,
                                 VerifyScreen& screen)
    : fields_(fields), state_(state), screen_(screen) {}

VerifyOutcome VerificationRun::cmdVerify() {
    state_.verifyErrorCount = 0;
    state_.verifyStopped = exitIsAsked();
    if (!exitIsAsked())
        state_.verifyState = StopRequest::None;
    screen_.showStatus();
    verifyBetweenPauses();
    if (!exitIsAsked() && !state_.verifyStopped)
        return state_.verifyErrorCount == 0 ? VerifyOutcome::Successful : VerifyOutcome::Errors;
    state_.verifyState = StopRequest::None;
    state_.verifyStopped = true;
    return VerifyOutcome::Stopped;
}

void VerificationRun::cmdCancel(bool barIsVisible) {
    state_.verifyState = barIsVisible ? StopRequest::Exit : StopRequest::Cancel;
    state_.exportFormat = ExportFormat::None;
}

bool VerificationRun::exitIsAsked() const {
    return state_.verifyState == StopRequest::Exit;
}

void VerificationRun::verifyBetweenPauses() {
    const QString text = getAllEnterBoxWord(fields_, state_.enterBoxCount);
    VerifyBar bar(screen_, getElementsEnterNum(fields_));
    bar.start();
    screen_.pause();
    if (exitIsAsked())
        return;
    int counter = 0;
    VerifyPass(fields_, state_, bar).verifyElements(counter, Corpus(text));
    screen_.pause();
}

} // namespace quillford
