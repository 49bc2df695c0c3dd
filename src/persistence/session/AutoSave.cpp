#include "persistence/session/AutoSave.h"

#include "base/Error.h"
#include "core/fields/SaveFlag.h"

#include <QScopedValueRollback>

namespace quillford {

namespace {

constexpr int ChangedInterval = 600; // milliseconds, from the first change on
constexpr int TicksBetween = 5;      // between two saves

} // namespace

AutoSave::AutoSave(QTimer& timer, Project& project, ProjectStore& store, DraftNames& names,
                   SaveStateLine& saveState, const Clock& clock)
    : timer_(timer),
      project_(project),
      store_(store),
      names_(names),
      saveState_(saveState),
      clock_(clock) {
    connect(&timer_, &QTimer::timeout, this, &AutoSave::tmrAutoSave_Timer);
}

void AutoSave::tmrAutoSave_Timer() {
    if (project_.state.commandsRunning > 0 || !GetSaveFlag(project_.fields, project_.state))
        return;
    if (timer_.interval() != ChangedInterval)
        timer_.setInterval(ChangedInterval);
    if (autoSaveTicks_ != TicksBetween) {
        ++autoSaveTicks_;
        return;
    }
    autoSaveTicks_ = 0;
    save();
}

void AutoSave::save() {
    const CommandScope running(project_.state);
    if (!nameDraft())
        return saveState_.showSaveState(QStringLiteral("not saved: no free name"));
    const QScopedValueRollback autoSaving(project_.state.isAutoSaving, true);
    try {
        // The project has a name, so that nobody is asked and the answer is yes.
        static_cast<void>(store_.SaveFile());
    } catch (const Error&) {
        return; // The line of the save state tells it, and the next sixth tick tries again.
    }
}

/// The name stays also where the save fails: the next one goes to the same file.
bool AutoSave::nameDraft() {
    ProjectState& state = project_.state;
    if (!state.projectFileName.isEmpty())
        return true;
    state.projectFileName = names_.newDraftFileName(clock_.dateAndTime().date());
    state.draftFileName = state.projectFileName;
    return !state.projectFileName.isEmpty();
}

} // namespace quillford
