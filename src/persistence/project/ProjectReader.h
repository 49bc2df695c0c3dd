#pragma once

#include "core/fields/Project.h"

#include <QString>

namespace quillford {

/// Reads the project that stands in the file `path` into a new project. Raises `Error`, which says
/// what is wrong without naming the file, when the file cannot be read or holds no project.
void readProject(const QString& path, Project& project);

} // namespace quillford
