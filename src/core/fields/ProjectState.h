#pragma once

#include <QString>

namespace quillford {

/// The state of the run beside the fields: plain values, none of them a second copy of a field.
struct ProjectState {
    /// The tab that is shown, 0 to 9.
    int currentTab = 0;
    /// The tab that is being switched to; after the switch the same as `currentTab`.
    int targetTab = 0;

    /// The full path of the open project; empty for one that was never saved.
    QString projectFileName;
    /// The path of the working copy of a project without a name of its own; empty if there is none.
    QString draftFileName;
    /// The path under which an opened project is known while its shadow copy is written.
    QString realFileName;
    /// The path of the copy that keeps an opened project as it was last saved; empty if there is
    /// none.
    QString shadowFileName;
    /// The path of the file that the timer has saved the project into since the user opened or
    /// saved it; empty before. The next file that the timer writes over is backed up first.
    QString timerSavedFileName;
    /// Where the project comes from: "new" or "open".
    QString fileOrigin;

    /// The project has changes that are not saved. Brought up to date by `GetSaveFlag`.
    bool saveFlag = false;
    /// The Final Draft on screen was built from the fields as they are.
    bool draftCurrent = false;
    /// True while the fields are cleared for a new project: what follows a change by the user does
    /// not follow then.
    bool resetting = false;
    /// True for the length of opening a project. Stays set after a file that was not found.
    bool isOpening = false;
    /// True while the fields take what was read from a file: no field changes but the one that is
    /// read.
    bool isLoading = false;
    /// True while the timer saves: the project still counts as changed after it.
    bool isAutoSaving = false;
    /// The project is a working copy that was left by an earlier run.
    bool isDraftProject = false;
    /// The project was open when an earlier run ended without closing it.
    bool isRecovered = false;
    /// `projectFileName` is a file that was refused when it was to be opened. Only a save that the
    /// user asks for writes it.
    bool isRefused = false;
    /// Exports leave out the verification while this is true. Only a project that is read sets it.
    bool verifyPassed = false;

    /// How many commands are at work, one inside the other. Counted by `CommandScope`; the timer
    /// that saves on its own does nothing while it is not 0.
    int commandsRunning = 0;
};

/// Tells for its lifetime that a command is at work on the project. A command may wait and let
/// timers run meanwhile; what they would do to a half-made project has to wait for its end.
class CommandScope {
public:
    /// The state outlives the scope.
    explicit CommandScope(ProjectState& state) : state_(state) { ++state_.commandsRunning; }

    ~CommandScope() { --state_.commandsRunning; }

    CommandScope(const CommandScope&) = delete;
    CommandScope& operator=(const CommandScope&) = delete;

private:
    ProjectState& state_;
};

} // namespace quillford
