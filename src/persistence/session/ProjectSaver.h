#pragma once

#include "core/commands/SaveDialog.h"
#include "core/fields/Project.h"
#include "core/settings/WorkFolders.h"
#include "core/wizard/SaveStateLine.h"
#include "core/wizard/WindowTitle.h"
#include "persistence/session/Backups.h"
#include "persistence/session/RecentProjects.h"
#include "persistence/session/ShadowCopy.h"
#include "platform/Clock.h"
#include "platform/UserPrompts.h"

#include <QString>

namespace quillford {

/// Saves the open project: into its own file, into a working copy, into its shadow copy.
class ProjectSaver {
public:
    /// Owns none of its arguments; all outlive it.
    ProjectSaver(Project& project, WorkFolders& folders, SaveDialog& dialog, RecentProjects& recent,
                 ShadowCopy& shadow, Backups& backups, WindowTitle& title, SaveStateLine& saveState,
                 UserPrompts& prompts, const Clock& clock);

    /// See `ProjectStore::SaveFile`. While `isAutoSaving` is set nobody is asked, a refused file is
    /// spared and the shadow copy written in its place, and the project still counts as changed.
    /// The line of the save state tells when it was saved, or why it was not. Before the timer
    /// first writes over a file that the user saved or opened, that one is backed up.
    [[nodiscard]] bool SaveFile();

    /// See `ProjectStore::saveAsNew`.
    void saveAsNew() { isNew_ = true; }

    /// Writes the project into a new file `shadowFileName`, and nothing else: neither the title nor
    /// the recent list nor the state of the project follows. An older copy of that name is backed
    /// up. Raises `Error`; there is no shadow copy then that could be put back.
    void writeShadow();

    /// See `ProjectStore::updateShadow`. A project that was saved under another name first gives
    /// its old file back as the user last saved it.
    void updateShadow();

private:
    [[nodiscard]] bool save();
    [[nodiscard]] bool chooseTarget();
    void write(bool isNew);
    void backUp(const QString& path);
    void rememberFolder();
    void settleState();
    void tellSaved();

    Project& project_;
    WorkFolders& folders_;
    SaveDialog& dialog_;
    RecentProjects& recent_;
    ShadowCopy& shadow_;
    Backups& backups_;
    WindowTitle& title_;
    SaveStateLine& saveState_;
    UserPrompts& prompts_;
    const Clock& clock_;
    bool isNew_ = false;
    bool lacksBackup_ = false; ///< what was written over last could not be backed up
};

} // namespace quillford
