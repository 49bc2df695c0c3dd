#pragma once

#include "core/fields/ProjectFields.h"
#include "verification/engine/VerificationState.h"
#include "verification/engine/VerifyScreen.h"

namespace quillford {

/// How a verification ended.
enum class VerifyOutcome { Successful, Errors, Stopped };

/// Conducts a verification from the press of `cmdVerify` to its outcome; which form shows that, and
/// what follows, is the caller's affair.
class VerificationRun {
public:
    /// Owns none of its arguments; all outlive it.
    VerificationRun(const ProjectFields& fields, VerificationState& state, VerifyScreen& screen);

    /// Runs a verification. `verifyErrorCount` starts at 0, the lists keep what they hold. The run
    /// is stopped by `cmdCancel`, called from within one of the screen's calls. A project without a
    /// filled cell has nothing to verify and is successful.
    VerifyOutcome cmdVerify();

    /// Asks for the end: of a run when one is going on (the bar is visible), otherwise of the form.
    /// No export waits any longer then.
    void cmdCancel(bool barIsVisible);

private:
    [[nodiscard]] bool exitIsAsked() const;
    void verifyBetweenPauses();

    const ProjectFields& fields_;
    VerificationState& state_;
    VerifyScreen& screen_;
};

} // namespace quillford
