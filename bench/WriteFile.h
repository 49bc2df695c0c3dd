#pragma once

#include "base/Files.h"

#include <QByteArray>
#include <QFile>
#include <QString>

namespace quillford {

/// Writes the file anew, in place and without syncing it to the disk. Raises `Error` naming the
/// file when that fails.
inline void writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) < 0 || !file.flush())
        raiseFileError(file);
}

} // namespace quillford
