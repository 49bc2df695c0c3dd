#pragma once

#include "persistence/compound/Storage.h"

#include <QString>

namespace quillford {

/// Opens the compound file `fileName` for reading and writing, with exclusive sharing. Raises
/// `FileNotFound`, `PathNotFound`, `AccessDenied` (a read-only file), `ShareViolation` (open
/// already, in this program or another), number 58 (no compound file) and the errors of a damaged
/// header or directory.
[[nodiscard]] Storage OpenStorageFile(const QString& fileName);

/// Makes the compound file `fileName`. A file that is there is replaced when `overwrite` is set;
/// otherwise it is opened as it is and `createProps` is cleared. If `createProps` is still set
/// then, the three empty property sets are made. Nothing is raised: after a failure the `Storage`
/// is bound to nothing, and its first use raises that failure.
[[nodiscard]] Storage CreateStorageFile(const QString& fileName, bool& createProps, bool ansi,
                                        bool& overwrite);

/// Makes the three standard property sets, empty, in the place of those that are there: the
/// summary information, the document summary information and the user-defined properties, the last
/// two in one stream. True when no error was noted on the way; nothing is raised.
bool CreatePropertySets(Storage& storage, bool ansi);

/// True when the file begins as a compound file does. It is not locked. Raises `FileNotFound`,
/// `PathNotFound` or `AccessDenied` when it cannot be read.
[[nodiscard]] bool IsStorageFile(const QString& fileName);

} // namespace quillford
