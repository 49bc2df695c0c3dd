#pragma once

#include <QString>

namespace quillford {

/// The most bytes, in UTF-8, of a file name that holds a project's file number.
inline constexpr qsizetype MostFileNameBytes = 200;

/// The longest beginning of the text that needs at most `bytes` bytes of UTF-8 and splits no
/// character.
[[nodiscard]] QString cutToBytes(const QString& text, qsizetype bytes);

/// A file name, without a folder, of the form `prefix`, file number, `ending`. The number may hold
/// whatever the user typed: the blanks at its ends are left out, each character that no file name
/// can carry becomes "-", and it is cut where the name would be longer than `MostFileNameBytes`.
[[nodiscard]] QString fileNameWith(const QString& prefix, const QString& fileNo,
                                   const QString& ending);

} // namespace quillford
