#pragma once

#include <QString>

namespace quillford {

/// The part of a path up to and including its last separator; empty when it has none. A path that
/// begins with "/" is one of this system, where "\" is a letter like any other. In every other path
/// both are separators: it may have been stored under Windows.
[[nodiscard]] QString getFolderOf(const QString& path);

} // namespace quillford
