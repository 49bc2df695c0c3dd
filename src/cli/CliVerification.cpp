#include "cli/CliVerification.h"

#include "verification/engine/VerificationRun.h"

namespace quillford {

namespace {

/// A run on the command line shows nothing while it goes on, and nobody stops it.
class NoScreen final : public VerifyScreen {
public:
    void showStatus() override {}

    void pause() override {}

    void setBarMaximum(int) override {}

    void setBarValue(int) override {}

    void setPercentText(const QString&) override {}
};

} // namespace

VerificationState verifyProject(const ProjectFields& fields) {
    VerificationState state;
    NoScreen screen;
    VerificationRun(fields, state, screen).cmdVerify();
    return state;
}

} // namespace quillford
