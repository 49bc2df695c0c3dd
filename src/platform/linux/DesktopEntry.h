#pragma once

#include "platform/FileTypes.h"

#include <QByteArray>

namespace quillford {

/// The bytes of a desktop entry that starts the program, alone or with one file of the kind. The
/// program's path may hold any character that a path can hold.
[[nodiscard]] QByteArray desktopEntry(const FileType& type);

} // namespace quillford
