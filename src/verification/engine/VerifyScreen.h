#pragma once

#include "verification/engine/VerifyProgress.h"

namespace quillford {

/// The form of a verification, as far as a run needs it.
class VerifyScreen : public VerifyProgress {
public:
    /// Shows the status of a run, its bar included, in the place of the question.
    virtual void showStatus() = 0;

    /// Lets the user see what stands there for 2 seconds, while events are handled; ends as soon as
    /// `verifyState` is `Exit`.
    virtual void pause() = 0;
};

} // namespace quillford
