#pragma once

#include "core/commands/ProjectStore.h"
#include "core/fields/Project.h"
#include "core/wizard/SaveStateLine.h"
#include "persistence/session/DraftNames.h"
#include "platform/Clock.h"

#include <QObject>
#include <QTimer>

namespace quillford {

/// Saves the project every few seconds while it has changes: into its own file, or into a working
/// copy while it has no name.
class AutoSave final : public QObject {
    Q_OBJECT

public:
    /// Saves at the ticks of `tmrAutoSave`. Owns none of its arguments; all outlive it.
    AutoSave(QTimer& timer, Project& project, ProjectStore& store, DraftNames& names,
             SaveStateLine& saveState, const Clock& clock);

    /// One tick; every sixth one saves. Nothing happens, and nothing is counted, while there are no
    /// changes and while a command or a prompt is at work. A save that fails is told in the line of
    /// the save state and tried again at the next sixth tick. Raises nothing.
    void tmrAutoSave_Timer();

private:
    void save();
    [[nodiscard]] bool nameDraft();

    QTimer& timer_;
    Project& project_;
    ProjectStore& store_;
    DraftNames& names_;
    SaveStateLine& saveState_;
    const Clock& clock_;
    int autoSaveTicks_ = 0;
};

} // namespace quillford
