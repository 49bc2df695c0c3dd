#pragma once

#include "platform/Folders.h"

namespace quillford {

/// The folders of a freedesktop.org desktop. An application object must stand before the program's
/// own file or folder is asked for.
class LinuxFolders final : public Folders {
public:
    [[nodiscard]] QString programFile() override;
    [[nodiscard]] QString programFolder() override;

    /// The variable XDG_DOCUMENTS_DIR where it names a full path, then what "user-dirs.dirs" says,
    /// then "Documents" in the home folder.
    [[nodiscard]] QString documentsFolder() override;

    /// "Quillford" under XDG_CONFIG_HOME, or under ".config" in the home folder.
    [[nodiscard]] QString configurationFolder() override;

    /// XDG_DATA_HOME, or ".local/share" in the home folder.
    [[nodiscard]] QString localDataFolder() override;
    [[nodiscard]] QString stateFolder() override;

    /// The variable "Temp", or "Quillford" under XDG_CACHE_HOME, or under ".cache" in the home
    /// folder.
    [[nodiscard]] QString temporaryFolder() override;
};

} // namespace quillford
