#pragma once

#include <QString>

namespace quillford {

/// The files of the open project and the list of recent ones, as the project commands see them.
/// Calls that can fail say so; the others do what can be done and go on.
class ProjectStore {
public:
    virtual ~ProjectStore() = default;

    /// Writes the project into `projectFileName`; asks for a name where there is none. False when
    /// the user gave no name; nothing has changed then. Raises `Error` when a write fails, and the
    /// file may hold a part of the project then.
    [[nodiscard]] virtual bool SaveFile() = 0;

    /// The next `SaveFile` writes a new file, whatever stands under its name.
    virtual void saveAsNew() = 0;

    /// Reads the project in a file. `argument` is its path or an entry of the recent list. False
    /// when there is no such project; the user has been told then, and the open one stays.
    virtual bool OpenFile(const QString& argument) = 0;

    /// Deletes the working copy `draftFileName`, if it lies in the folder for drafts, and empties
    /// the name.
    virtual void deleteDraft() = 0;

    /// The same for a project that the user gives up, and takes its entry off the recent list.
    virtual void dropDraft() = 0;

    /// Writes the open project into its shadow copy as well, if it has one, so that the copy
    /// follows a save that the user asked for. Raises `Error` as `SaveFile` does.
    virtual void updateShadow() = 0;

    /// Puts the shadow copy back over the project's file, with the list's first entry as it was
    /// when the project was opened, and deletes the copy. A copy that cannot be put back is kept,
    /// and the user is told: false then.
    [[nodiscard]] virtual bool putShadowBack() = 0;

    /// Deletes the shadow copy, if there is one.
    virtual void deleteShadow() = 0;

    /// Takes the mark of an open project out of its entry in the recent list, which is the first
    /// unless another program has opened a project since.
    virtual void clearOpenMarker() = 0;

    /// Sets the two counters of recovered projects in the recent list to 1.
    virtual void resetRecentCounters() = 0;

    /// Reads the recent list and shows it anew.
    virtual void reloadRecentProjects() = 0;

    /// The entry behind a row of the recent list, 1 to 5; empty for a row without one.
    [[nodiscard]] virtual QString recentEntry(int number) const = 0;
};

} // namespace quillford
