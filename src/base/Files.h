#pragma once

#include "base/Error.h"

#include <QByteArray>
#include <QFile>
#include <QString>

namespace quillford {

/// Raises the failure of a file as an `Error` whose source is `path`, the file's name where that is
/// left out.
[[noreturn]] void raiseFileError(const QFileDevice& file, const QString& path);
[[noreturn]] void raiseFileError(const QFileDevice& file);

/// The whole content of the file `path`. Raises `Error` naming the file when it cannot be read.
[[nodiscard]] QByteArray contentOfFile(const QString& path);

/// Writes all the bytes to a file that was opened without a buffer. Raises `Error` whose source is
/// `path` when they do not all find room; a part of them may be written then.
void writeAll(QFileDevice& file, const QByteArray& bytes, const QString& path);

/// Makes the file `path` hold these bytes and nothing else. They are written beside it and to the
/// disk before they take its place, so that it is the old file or the new one at any moment. Raises
/// `Error` whose source is `path`; the old file stays then.
void replaceFile(const QString& path, const QByteArray& bytes);

/// Gives the file `made` the place of `path` in one step, whatever stands there. Both are on one
/// file system. Raises `Error` whose source is `path`.
void takePlaceOf(const QString& made, const QString& path);

/// Why a file could not be written, in a few words for the line in which the window tells it: what
/// can be seen of `path` and its folder now, else the failure's own description.
[[nodiscard]] QString reasonNotWritten(const QString& path, const Error& failure);

/// Opens the file `path` without a buffer, for writing at its start, and makes it if it is missing.
/// It is not emptied. Meant for folders in which others may have put things: a link is not
/// followed, and anything but a plain file is refused. Raises `Error` naming the file.
void openPlainFile(QFile& file, const QString& path);

} // namespace quillford
