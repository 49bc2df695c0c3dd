#pragma once

#include <QString>

namespace quillford {

/// Where the desktop keeps things. Paths are absolute and end without a separator.
class Folders {
public:
    virtual ~Folders() = default;

    /// The folder for temporary files: the value of the environment variable "Temp" where it is
    /// set, otherwise a folder that no other user can write into, kept from run to run. It is made
    /// if it is missing. Raises `Error` naming the folder when it can neither be found nor made.
    [[nodiscard]] virtual QString temporaryFolder() = 0;
};

} // namespace quillford
