#pragma once

#include "base/Error.h"
#include "core/fields/ProjectFields.h"
#include "platform/Folders.h"
#include "platform/UserPrompts.h"

#include <QString>

#include <optional>

namespace quillford {

/// Composes the Index of Elements as a page of its own, from the template "INDEXHTMLTEMPLATE".
class IndexComposer {
public:
    /// Owns none of its arguments; all outlive it.
    IndexComposer(const ProjectFields& fields, Folders& folders, UserPrompts& prompts);

    /// Puts the page into `html`. Any failure ends the composition: the answer is false, `html`
    /// stays as it was and `failure()` tells the reason. A template that does not load is told in
    /// a box.
    bool ExportToIndex(QString& html);

    /// What ended the last composition, or nothing.
    [[nodiscard]] const std::optional<Error>& failure() const noexcept { return failure_; }

private:
    const ProjectFields& fields_;
    Folders& folders_;
    UserPrompts& prompts_;
    std::optional<Error> failure_;
};

} // namespace quillford
