#include "persistence/project/ProjectReader.h"

#include "base/Files.h"
#include "persistence/project/JsonReader.h"

#include <QFileInfo>

namespace quillford {

void readProject(const QString& path, Project& project) {
    readProjectJson(contentOfFile(path), QFileInfo(path).absolutePath(), project);
}

} // namespace quillford
