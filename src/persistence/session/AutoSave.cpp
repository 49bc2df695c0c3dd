#include "persistence/session/AutoSave.h"

#include "base/Error.h"
#include "core/fields/SaveFlag.h"

#include <QScopedValueRollback>

namespace quillford {

namespace {

constexpr int ChangedInterval = 600; // milliseconds, from the first change on
constexpr int TicksBetween = 5;      // between two saves

constexpr qint64 FileAlreadyExists = 58;

} // namespace

AutoSave::AutoSave(QTimer& timer, Project& project, ProjectStore& store, DraftNames& names,
                   SaveStateLine& saveState)
    : timer_(timer), project_(project), store_(store), names_(names), saveState_(saveState) {
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
    try {
        save();
    } catch (const Error& error) {
        saveState_.showSaveState(QStringLiteral("not saved: ") + error.description());
    }
}

void AutoSave::save() {
    const CommandScope running(project_.state);
    nameDraft();
    const QScopedValueRollback autoSaving(project_.state.isAutoSaving, true);
    // The project has a name, so that nobody is asked and the answer is yes.
    static_cast<void>(store_.SaveFile());
}

/// The name stays also where the save fails: the next one goes to the same file.
void AutoSave::nameDraft() {
    ProjectState& state = project_.state;
    if (!state.projectFileName.isEmpty())
        return;
    const QString name = names_.newDraftFileName(QDate::currentDate());
    if (name.isEmpty())
        throw Error(FileAlreadyExists, QStringLiteral("no name for a working copy is free"));
    state.projectFileName = name;
    state.draftFileName = name;
}

} // namespace quillford
