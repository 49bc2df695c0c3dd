#pragma once

#include "controls/FormDialog.h"
#include "core/fields/ProjectFields.h"
#include "core/settings/mdlSystem.h"
#include "platform/Clock.h"
#include "verification/engine/VerificationRun.h"
#include "verification/engine/VerifyScreen.h"

#include <memory>

namespace quillford {

namespace Ui {
class frmVerify;
}

/// Asks whether the Final Draft is to be verified, and runs the verification with its progress.
class frmVerify final : public FormDialog, private VerifyScreen {
    Q_OBJECT

public:
    enum class Answer {
        Skip,       ///< go on without the verification
        Successful, ///< it ran, and found everything
        Errors,     ///< it ran, and found something missing
        Cancel,     ///< the user gave up, before it or while it ran
    };

    /// Owns none of its arguments; all outlive the form.
    frmVerify(QWidget* parent, const ProjectFields& fields, VerificationState& state, Clock& clock,
              const mdlSystem& system);
    ~frmVerify() override;

    /// Shows the form and waits for its end.
    [[nodiscard]] Answer ask();

    void reject() override { cmdCancel(); }

private:
    void showStatus() override;
    void pause() override;
    void setBarMaximum(int maximum) override;
    void setBarValue(int value) override;
    void setPercentText(const QString& text) override;

    void cmdVerify();
    void cmdCancel();
    void end(Answer answer);

    std::unique_ptr<Ui::frmVerify> ui_;
    VerificationState& state_;
    Clock& clock_;
    const mdlSystem& system_;
    VerificationRun run_;
    Answer answer_ = Answer::Cancel;
    bool running_ = false;
};

} // namespace quillford
