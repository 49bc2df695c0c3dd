#include "persistence/project/ProjectReader.h"

#include "base/Error.h"
#include "persistence/project/JsonReader.h"

#include <QFile>
#include <QFileInfo>

namespace quillford {

namespace {

QByteArray contentOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw Error(file.error(), file.errorString());
    const QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw Error(file.error(), file.errorString());
    return content;
}

} // namespace

void readProject(const QString& path, Project& project) {
    readProjectJson(contentOf(path), QFileInfo(path).absolutePath(), project);
}

} // namespace quillford
