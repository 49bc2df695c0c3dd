#pragma once

#include <QString>

namespace quillford {

/// Where the desktop keeps things. Paths are absolute and end without a separator, a root folder
/// excepted. No folder but the temporary one is made by asking for it, and none of the others need
/// exist.
class Folders {
public:
    virtual ~Folders() = default;

    /// The full path of the running program's file.
    [[nodiscard]] virtual QString programFile() = 0;

    /// The folder of `programFile()`.
    [[nodiscard]] virtual QString programFolder() = 0;

    /// The folder for the user's documents.
    [[nodiscard]] virtual QString documentsFolder() = 0;

    /// The folder in which this program keeps its settings, the program's own.
    [[nodiscard]] virtual QString configurationFolder() = 0;

    /// The folder in which programs keep data for the user that are no documents, shared by all.
    [[nodiscard]] virtual QString localDataFolder() = 0;

    /// The folder in which this program keeps what outlives a run and is neither settings nor
    /// documents, the program's own.
    [[nodiscard]] virtual QString stateFolder() = 0;

    /// The folder for temporary files: the value of the environment variable "Temp" where it is
    /// set, otherwise a folder that no other user can write into, kept from run to run. It is made
    /// if it is missing. Raises `Error` naming the folder when it can neither be found nor made.
    [[nodiscard]] virtual QString temporaryFolder() = 0;
};

} // namespace quillford
