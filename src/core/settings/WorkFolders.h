#pragma once

#include "core/settings/Settings.h"
#include "platform/Folders.h"

#include <QString>

namespace quillford {

/// The folders in which the program works. Every path is one of this system; where a separator
/// ends it, the call says so.
class WorkFolders {
public:
    /// Both must live longer than this object.
    WorkFolders(Settings& settings, Folders& folders) : settings_(settings), folders_(folders) {}

    /// The working folder: the last component of the program's folder, under the user's documents.
    /// When it is missing it is made, with "Projects", "Projects/Final Projects" and "Drafts" in
    /// it. When it exists nothing else is looked at, so that one of those that the user deleted is
    /// not made again. A folder that cannot be made is passed over: the later save fails by itself.
    [[nodiscard]] QString getWorkDir();

    /// Where a copy of a project may lie that could not be written in its own place.
    [[nodiscard]] QString getVirtualStoreDir();

    /// The folder for temporary files, with a closing separator. Raises `Error` as
    /// `Folders::temporaryFolder` does.
    [[nodiscard]] QString getTempDir();

    /// The folder of the project that was used last, as it was stored; the documents folder when
    /// none was stored or it is no folder any more.
    [[nodiscard]] QString lastDir();

    /// Stores a folder for `lastDir`.
    void setLastDir(const QString& folder);

    /// A file name that is free in `lastDir()`: see the static call.
    [[nodiscard]] QString nextFreeName(const QString& prefix, const QString& extension);

    /// The first name, without its folder, of the form prefix, blank, number, dot, extension that
    /// nothing in `folder` has, for the numbers 1 to 1000. Empty when all of them are taken. A
    /// folder that does not exist has no names.
    [[nodiscard]] static QString nextFreeName(const QString& prefix, const QString& extension,
                                              const QString& folder);

private:
    Settings& settings_;
    Folders& folders_;
};

} // namespace quillford
