#pragma once

#include "app/Ports.h"
#include "core/commands/ProjectCommands.h"
#include "persistence/project/WorkingCopies.h"
#include "persistence/session/AutoSave.h"
#include "persistence/session/ProjectFiler.h"

namespace quillford {

/// The project's files, the recent list, the commands on the project as a whole and what saves on
/// its own, made and joined.
class ProjectFiles {
public:
    /// What filing shares with the wizard. It owns nothing.
    struct Wizard {
        SectionRules& rules;
        WizardNavigator& navigator;
        WizardScreen& screen;
        SaveStateLine& saveState;
        QTimer& tmrAutoSave;
    };

    /// Owns none of its arguments; all outlive it.
    ProjectFiles(Project& project, mdlSystem& system, Settings& settings, UserPrompts& prompts,
                 const Wizard& wizard, const Ports& ports);

    [[nodiscard]] NewProject& newProject() { return newProject_; }

    [[nodiscard]] ProjectStore& store() { return filer_; }

    [[nodiscard]] RecentProjects& recent() { return recent_; }

    [[nodiscard]] ProjectCommands& commands() { return commands_; }

    [[nodiscard]] SaveDialog& saveDialog() { return dialog_; }

private:
    WorkFolders folders_;
    SaveDialog dialog_;
    DraftNames names_;
    RecentProjects recent_;
    ShadowCopy shadow_;
    Backups backups_;
    WindowTitle title_;
    WorkingCopies copies_;
    ProjectSaver saver_;
    ProjectOpener opener_;
    ProjectFiler filer_;
    NewProject newProject_;
    AutoSave autoSave_;
    ProjectCommands commands_;
};

} // namespace quillford
