#pragma once

#include <QByteArray>
#include <QFileDevice>
#include <QString>

namespace quillford {

/// Raises the failure of a file as an `Error` whose source is the file's name.
[[noreturn]] void raiseFileError(const QFileDevice& file);

/// The whole content of the file `path`. Raises `Error` naming the file when it cannot be read.
[[nodiscard]] QByteArray contentOfFile(const QString& path);

/// Writes all the bytes to a file that was opened without a buffer. Raises `Error` naming the file
/// when they do not all find room; a part of them may be written then.
void writeAll(QFileDevice& file, const QByteArray& bytes);

} // namespace quillford
