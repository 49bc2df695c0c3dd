#pragma once

#include "base/Error.h"
#include "draft/template/HTMLTemplate.h"
#include "platform/Folders.h"
#include "platform/UserPrompts.h"
#include "verification/engine/VerificationState.h"

#include <QString>

#include <optional>

namespace quillford {

/// Composes what a verification did not find as a page to be printed, from the template
/// "ERRORREPORT".
class ErrorReportComposer {
public:
    /// Owns none of its arguments; all outlive it.
    ErrorReportComposer(const MissingLists& lists, Folders& folders, UserPrompts& prompts);

    /// Puts the page into `html`. Any failure ends the composition: the answer is false, `html`
    /// stays as it was and `failure()` tells the reason. A template that does not load is told in
    /// a box.
    bool ExportToErrorReport(QString& html);

    /// What ended the last composition, or nothing.
    [[nodiscard]] const std::optional<Error>& failure() const noexcept { return failure_; }

private:
    void fillNumerals(HTMLTemplate& page) const;

    const MissingLists& lists_;
    Folders& folders_;
    UserPrompts& prompts_;
    std::optional<Error> failure_;
};

} // namespace quillford
