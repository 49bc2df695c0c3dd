#pragma once

#include <QString>

namespace quillford {

/// The most bytes, in UTF-8, of a file name that holds a project's file number.
inline constexpr qsizetype MostFileNameBytes = 200;

/// A file name, without a folder, of the form `prefix`, file number, `ending`. The number may hold
/// whatever the user typed: the blanks at its ends are left out, each character that no file name
/// can carry becomes "-", and it is cut where the name would be longer than `MostFileNameBytes`.
[[nodiscard]] QString fileNameWith(const QString& prefix, const QString& fileNo,
                                   const QString& ending);

} // namespace quillford
