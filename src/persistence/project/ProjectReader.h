#pragma once

#include "core/fields/Project.h"
#include "persistence/project/PictureReceiver.h"
#include "persistence/project/ProjectFileReader.h"

#include <QString>

namespace quillford {

/// Reads the project that stands in the file `path`, a project file or the JSON form, told apart by
/// content, into a new project; the stored pictures of a project file go to `pictures`.
///
/// Of a damaged project file what can be read is read, and the report names the streams that are
/// missing. Raises `Error`, which says what is wrong, when the file cannot be read, holds no
/// project, or is of a version that is higher or no number.
ReadReport readProject(const QString& path, Project& project, PictureReceiver& pictures);

/// The same for whoever has no use for stored pictures.
ReadReport readProject(const QString& path, Project& project);

} // namespace quillford
