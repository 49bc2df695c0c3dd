#pragma once

#include "base/Error.h"

#include <QString>

namespace quillford {

/// Why a project could not be saved in the file `path`, in the few words that the line of the save
/// state has room for: "disk full", "file in use". A failure of the storage that has no such words
/// is told like that of any file, by `reasonNotWritten`.
[[nodiscard]] QString reasonNotSaved(const QString& path, const Error& failure);

} // namespace quillford
