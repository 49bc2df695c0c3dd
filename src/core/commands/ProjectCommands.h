#pragma once

#include "core/commands/NewProject.h"
#include "core/commands/ProjectStore.h"
#include "core/commands/SaveDialog.h"
#include "core/fields/Project.h"
#include "core/settings/WorkFolders.h"
#include "core/wizard/SaveStateLine.h"
#include "core/wizard/WindowTitle.h"
#include "core/wizard/WizardNavigator.h"
#include "core/wizard/WizardScreen.h"
#include "platform/UserPrompts.h"

#include <QString>

namespace quillford {

/// The commands on the project as a whole. Each leaves the files' names in `ProjectState` in step
/// with each other. A save that fails ends in a box; the names are what they were then, and the
/// project still counts as changed. Nothing is raised.
///
/// The commands wait and let window events through: no second one may begin meanwhile, which is the
/// matter of the `CommandGate` before them.
class ProjectCommands {
public:
    /// Owns none of its arguments; all outlive it.
    ProjectCommands(Project& project, WizardNavigator& navigator, WizardScreen& screen,
                    NewProject& newProject, ProjectStore& store, SaveDialog& saveDialog,
                    WorkFolders& folders, WindowTitle& title, SaveStateLine& saveState,
                    UserPrompts& prompts);

    void mnuFileNew_Click();
    void mnuFileOpen_Click();
    void mnuFileSave_Click();
    void mnuFileSaveAs_Click();
    void mnuGotoWelcomePage_Click();

    /// Opens the project of a row of the recent list, 1 to 5. The first row does nothing while it
    /// is the open project.
    void mnuFileRecent_Click(int index);

    /// The same from the Welcome page, where row 0 begins a new application.
    void lblRecentPatents_Click(int index);

    /// The window is to be closed, by `mnuFileExit`, `lblClose` or the desktop. False when it has
    /// to stay open. When it may close, nothing saves on its own any more.
    [[nodiscard]] bool queryUnload();

    /// Saves the project because the user said so; one without a name of its own is given one, and
    /// its working copy is deleted. True when it was saved.
    bool saveAndCleanDraft();

private:
    /// Whether the project on screen may go, and how the user wants it.
    enum class Leave { Stay, Kept, GivenUp };

    /// What happens when the user wants it saved and then gives no name, and there is a working
    /// copy that keeps it.
    enum class WithDraft { GoesOn, Stops };

    [[nodiscard]] Leave askToLeave(const QString& question, WithDraft withDraft);
    [[nodiscard]] bool keepInDraft();
    [[nodiscard]] bool giveUp();
    [[nodiscard]] bool trySave();
    void letShadowFollow();
    void startNew();

    Project& project_;
    WizardNavigator& navigator_;
    WizardScreen& screen_;
    NewProject& newProject_;
    ProjectStore& store_;
    SaveDialog& saveDialog_;
    WorkFolders& folders_;
    WindowTitle& title_;
    SaveStateLine& saveState_;
    UserPrompts& prompts_;
};

} // namespace quillford
