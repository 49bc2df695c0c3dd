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

} // namespace quillford
