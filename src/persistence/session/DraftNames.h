#pragma once

#include "core/fields/ProjectFields.h"
#include "core/settings/WorkFolders.h"

#include <QDate>
#include <QString>

namespace quillford {

/// The names of the files that the program makes of its own accord, in the folder "Drafts".
class DraftNames {
public:
    /// Owns none of its arguments; both outlive it.
    DraftNames(const ProjectFields& fields, WorkFolders& folders)
        : fields_(fields), folders_(folders) {}

    /// The full path of the working copy of a project without a name. It bears the file number and
    /// the day where there is a number, whatever has that name already; otherwise a number that is
    /// free in the folder, behind two blanks. Empty when none of a thousand is free.
    [[nodiscard]] QString newDraftFileName(const QDate& today);

    /// The full path of the shadow copy of a project that was opened. It bears the file number
    /// where there is one; otherwise a number that is free in the folder used last, although the
    /// copy lies in "Drafts". Empty when none of a thousand is free.
    [[nodiscard]] QString newShadowFileName();

private:
    [[nodiscard]] QString draftsFolder();

    const ProjectFields& fields_;
    WorkFolders& folders_;
};

} // namespace quillford
