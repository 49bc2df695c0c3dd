#pragma once

#include <QString>

namespace quillford {

/// The part of a path up to and including its last separator; empty when it has none. A path that
/// begins with "/" is one of this system, where "\" is a letter like any other. In every other path
/// both are separators: it may have been stored under Windows.
[[nodiscard]] QString getFolderOf(const QString& path);

/// Whether a path lies in the folder for working copies: the folder's name is looked for anywhere
/// in the text, so that a folder of the user's own that bears the name counts as well.
[[nodiscard]] bool isDraftPath(const QString& path);

/// Whether it is the working copy there of a project that has a file number but no name.
[[nodiscard]] bool isProvisionalDraftPath(const QString& path);

} // namespace quillford
