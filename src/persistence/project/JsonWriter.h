#pragma once

#include "core/fields/Project.h"
#include "persistence/project/PictureList.h"

#include <QByteArray>

namespace quillford {

/// The JSON form of a project in UTF-8: every field in the order of the field table, one key a
/// line, a repeated field with as many texts as its count says. Half a surrogate pair is written as
/// an escape, so that every text can be read back as it was.
[[nodiscard]] QByteArray writeProjectJson(const Project& project);

/// The same for a project that was read from a project file, with the version of the file and its
/// stored pictures behind the fields.
[[nodiscard]] QByteArray writeProjectJson(const Project& project, const QString& version,
                                          const PictureList& pictures);

} // namespace quillford
