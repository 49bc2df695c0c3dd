#pragma once

#include "core/fields/ProjectFields.h"
#include "core/settings/WorkFolders.h"
#include "platform/UserPrompts.h"

#include <QString>

namespace quillford {

/// Asks the user under which name to save a project or an exported Final Draft.
class SaveDialog {
public:
    /// Owns none of its arguments; all outlive it.
    SaveDialog(const ProjectFields& fields, WorkFolders& folders, UserPrompts& prompts);

    /// Asks for the full path of a file with the extension "ivd" (a project), "doc" or "htm" (a
    /// Final Draft), or another one, told without its point. The name that stands in the dialog
    /// bears the file number where there is one, and otherwise a number that is free in the folder
    /// used last, whatever folder the dialog shows.
    ///
    /// A name with another ending gets the point and the extension behind it; so does the "htm"
    /// dialog's own proposal, which ends in "html". Where a file has that name, the user is asked
    /// whether to replace it, and chooses anew if not. Empty when he cancels.
    [[nodiscard]] QString ask(const QString& extension);

    /// Asks for the file of a project, again and again while the user chooses one among the working
    /// copies, which is told to be no safe place. Empty when the user cancels.
    [[nodiscard]] QString askForProject();

private:
    [[nodiscard]] bool mayTake(const QString& path);
    [[nodiscard]] QString proposedName(const QString& prefix, const QString& ending,
                                       const QString& freeExtension);

    const ProjectFields& fields_;
    WorkFolders& folders_;
    UserPrompts& prompts_;
};

} // namespace quillford
