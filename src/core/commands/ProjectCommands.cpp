#include "core/commands/ProjectCommands.h"

#include "base/Error.h"
#include "core/fields/SaveFlag.h"
#include "core/settings/PathParts.h"

#include <QScopedValueRollback>

namespace quillford {

namespace {

using Icon = UserPrompts::Icon;

/// The file names of the project go back to what they were, unless a save makes new ones stand.
class NamesGuard {
public:
    explicit NamesGuard(ProjectState& state)
        : state_(state), project_(state.projectFileName), draft_(state.draftFileName) {}

    ~NamesGuard() {
        if (stand_)
            return;
        state_.projectFileName = project_;
        state_.draftFileName = draft_;
    }

    NamesGuard(const NamesGuard&) = delete;
    NamesGuard& operator=(const NamesGuard&) = delete;

    void letStand() { stand_ = true; }

private:
    ProjectState& state_;
    QString project_;
    QString draft_;
    bool stand_ = false;
};

/// The timer that saves on its own stands still for a scope.
class AutoSavePause {
public:
    explicit AutoSavePause(AutoSaveSwitch& timer)
        : timer_(timer), wasEnabled_(timer.isAutoSaveEnabled()) {
        timer_.setAutoSaveEnabled(false);
    }

    ~AutoSavePause() { timer_.setAutoSaveEnabled(wasEnabled_); }

    AutoSavePause(const AutoSavePause&) = delete;
    AutoSavePause& operator=(const AutoSavePause&) = delete;

private:
    AutoSaveSwitch& timer_;
    bool wasEnabled_;
};

void tellFailure(UserPrompts& prompts, const QString& text) {
    prompts.showMessage(Icon::Exclamation, QStringLiteral("Error"), text);
}

} // namespace

ProjectCommands::ProjectCommands(Project& project, WizardNavigator& navigator, WizardScreen& screen,
                                 NewProject& newProject, ProjectStore& store,
                                 SaveDialog& saveDialog, WorkFolders& folders, WindowTitle& title,
                                 SaveStateLine& saveState, UserPrompts& prompts)
    : project_(project),
      navigator_(navigator),
      screen_(screen),
      newProject_(newProject),
      store_(store),
      saveDialog_(saveDialog),
      folders_(folders),
      title_(title),
      saveState_(saveState),
      prompts_(prompts) {}

void ProjectCommands::mnuFileNew_Click() {
    if (screen_.project.isWelcomePageShown())
        return navigator_.showSectionOne();
    const CommandScope running(project_.state);
    const QString question =
        QStringLiteral("Do you want to save the current project before you create a new Project?");
    if (askToLeave(question, WithDraft::GoesOn) != Leave::Stay)
        startNew();
}

void ProjectCommands::mnuFileOpen_Click() {
    const CommandScope running(project_.state);
    const QString question =
        QStringLiteral("Do you want to save the current project before you open the next file?");
    if (askToLeave(question, WithDraft::GoesOn) == Leave::Stay)
        return;
    const QString path =
        prompts_.chooseFileToOpen({.folder = folders_.getWorkDir() + QStringLiteral("/Projects"),
                                   .name = {},
                                   .filterDescription = QStringLiteral("Quillford File"),
                                   .filterPattern = QStringLiteral("*.ivd")});
    if (!path.isEmpty())
        store_.OpenFile(path);
}

void ProjectCommands::mnuFileSave_Click() {
    ProjectState& state = project_.state;
    const CommandScope running(state);
    GetSaveFlag(project_.fields, state);
    NamesGuard names(state);
    // A project that still lives among the working copies counts as never saved.
    if (isDraftPath(state.projectFileName))
        state.draftFileName = state.projectFileName;
    const bool onWelcomePage = screen_.project.isWelcomePageShown();
    if (onWelcomePage)
        navigator_.showSectionOne();
    const bool hasDraft = !state.draftFileName.isEmpty();
    if (!(onWelcomePage && hasDraft) && saveAndCleanDraft())
        names.letStand();
}

void ProjectCommands::mnuFileSaveAs_Click() {
    ProjectState& state = project_.state;
    const CommandScope running(state);
    GetSaveFlag(project_.fields, state);
    if (screen_.project.isWelcomePageShown())
        return navigator_.showSectionOne();
    const AutoSavePause paused(screen_.autoSave);
    const QString path = saveDialog_.askForProject();
    if (path.isEmpty())
        return;
    NamesGuard names(state);
    const QString tabSavedName = state.projectFileName;
    if (isDraftPath(tabSavedName))
        state.draftFileName = tabSavedName;
    state.projectFileName = path;
    store_.saveAsNew();
    if (!trySave())
        return;
    names.letStand();
    store_.deleteDraft();
    ResetSaveFlag(project_.fields, state);
    letShadowFollow();
}

void ProjectCommands::mnuGotoWelcomePage_Click() {
    const CommandScope running(project_.state);
    const QString question =
        QStringLiteral("Do you want to save the current project before you create a new Project?");
    const Leave leave = askToLeave(question, WithDraft::GoesOn);
    if (leave == Leave::Stay || (leave == Leave::GivenUp && !giveUp()))
        return;
    startNew();
    store_.resetRecentCounters();
    title_.showProgramAlone();
    store_.reloadRecentProjects();
    navigator_.showWelcomePage();
    screen_.autoSave.setAutoSaveEnabled(false);
}

void ProjectCommands::mnuFileRecent_Click(int index) {
    const bool isOpenProject = index == 1 && !screen_.project.isWelcomePageShown() &&
                               !project_.state.projectFileName.isEmpty();
    if (isOpenProject || store_.recentEntry(index).isEmpty())
        return;
    const CommandScope running(project_.state);
    const QString question =
        QStringLiteral("Do you want to save the current project before you open the next File?");
    // A save gives the project a row of its own and may move the others.
    const QString entry = store_.recentEntry(index);
    if (askToLeave(question, WithDraft::Stops) != Leave::Stay)
        store_.OpenFile(entry);
}

void ProjectCommands::lblRecentPatents_Click(int index) {
    if (index == 0)
        navigator_.showSectionOne();
    else
        mnuFileRecent_Click(index);
}

bool ProjectCommands::queryUnload() {
    ProjectState& state = project_.state;
    const CommandScope running(state);
    QScopedValueRollback saveFlag(state.saveFlag);
    NamesGuard names(state);
    if (state.isDraftProject || state.isRecovered)
        state.saveFlag = true;
    if (state.isDraftProject)
        state.draftFileName = state.projectFileName;
    const QString question =
        QStringLiteral("Do you want to save the current project before you exit?");
    const Leave leave = askToLeave(question, WithDraft::GoesOn);
    if (leave == Leave::Stay || (leave == Leave::GivenUp && !giveUp()))
        return false;
    names.letStand();
    saveFlag.commit();
    screen_.autoSave.setAutoSaveEnabled(false);
    store_.clearOpenMarker();
    store_.deleteShadow();
    return true;
}

ProjectCommands::Leave ProjectCommands::askToLeave(const QString& question, WithDraft withDraft) {
    ProjectState& state = project_.state;
    if (!GetSaveFlag(project_.fields, state))
        return Leave::Kept;
    switch (prompts_.askYesNoCancel(Icon::Question, QStringLiteral("Save Project?"), question)) {
    case UserPrompts::Answer::Cancel:
        return Leave::Stay;
    case UserPrompts::Answer::No:
        return Leave::GivenUp;
    case UserPrompts::Answer::Yes:
        break;
    }
    const bool hasDraft = !state.draftFileName.isEmpty();
    if (saveAndCleanDraft())
        return Leave::Kept;
    const bool goesOn = hasDraft && withDraft == WithDraft::GoesOn;
    return goesOn && keepInDraft() ? Leave::Kept : Leave::Stay;
}

/// The user wanted to keep what he wrote: the working copy gets all of it before it is left.
bool ProjectCommands::keepInDraft() {
    const QScopedValueRollback autoSaving(project_.state.isAutoSaving, true);
    return trySave();
}

bool ProjectCommands::giveUp() {
    if (project_.state.draftFileName.isEmpty())
        return project_.state.shadowFileName.isEmpty() || store_.putShadowBack();
    store_.dropDraft();
    return true;
}

bool ProjectCommands::saveAndCleanDraft() {
    ProjectState& state = project_.state;
    const CommandScope running(state);
    const AutoSavePause paused(screen_.autoSave);
    NamesGuard names(state);
    const bool hasDraft = !state.draftFileName.isEmpty();
    if (hasDraft)
        state.projectFileName.clear();
    if (!trySave())
        return false;
    names.letStand();
    if (hasDraft) {
        store_.deleteDraft();
        ResetSaveFlag(project_.fields, state);
    }
    letShadowFollow();
    return true;
}

bool ProjectCommands::trySave() {
    try {
        return store_.SaveFile();
    } catch (const Error& error) {
        tellFailure(prompts_, error.description());
        return false;
    }
}

void ProjectCommands::letShadowFollow() {
    try {
        store_.updateShadow();
    } catch (const Error& error) {
        tellFailure(prompts_, QStringLiteral("The project is saved, but not its backup copy: ") +
                                  error.description());
    }
}

void ProjectCommands::startNew() {
    newProject_.NewFile();
    saveState_.showSaveState(QString());
}

} // namespace quillford
