#pragma once

#include "core/fields/ProjectFields.h"
#include "core/settings/mdlSystem.h"
#include "draft/commands/ExportCheck.h"
#include "platform/Clock.h"
#include "platform/TextMeasure.h"
#include "verification/engine/VerificationState.h"

#include <QFont>
#include <QWidget>

#include <functional>

namespace quillford {

/// The check before an export, on screen: `frmVerify`, and `frmVerifyResult` after it.
class VerifyDialogs final : public ExportCheck {
public:
    /// What the dialogs work with. Nothing is owned; all outlives them.
    struct Parts {
        QWidget& form; ///< the window before which they stand
        const ProjectFields& fields;
        VerificationState& state;
        const mdlSystem& system;
        Clock& clock;
        const TextMeasure& measure;
        QFont font; ///< the font that `measure` measures
    };

    /// Prints the error report for these lists.
    using PrintReport = std::function<void(const MissingLists&)>;

    VerifyDialogs(const Parts& parts, PrintReport printReport);

    [[nodiscard]] Outcome showVerify() override;

private:
    [[nodiscard]] Outcome showSuccess();
    [[nodiscard]] Outcome showErrors();

    Parts parts_;
    PrintReport printReport_;
};

} // namespace quillford
