#include "base/Files.h"

#include "base/Error.h"

#include <QFile>

namespace quillford {

void raiseFileError(const QFileDevice& file) {
    throw Error(file.error(), file.errorString(), file.fileName());
}

QByteArray contentOfFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        raiseFileError(file);
    QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError)
        raiseFileError(file);
    return content;
}

void writeAll(QFileDevice& file, const QByteArray& bytes) {
    // On a full disk a write may be short without an error; the next one has it.
    for (qint64 written = 0; written < bytes.size();) {
        const qint64 count = file.write(bytes.constData() + written, bytes.size() - written);
        if (count <= 0)
            raiseFileError(file);
        written += count;
    }
}

} // namespace quillford
