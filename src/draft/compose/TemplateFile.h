#pragma once

#include "draft/template/HTMLTemplate.h"
#include "platform/Folders.h"
#include "platform/UserPrompts.h"

#include <QString>

namespace quillford {

/// Writes one of the program's templates, "HTMLTEMPLATE" for instance, byte for byte into the
/// temporary folder, under a name with a random number below 10000 and the ending of the template's
/// kind, and gives its path. The file stays. Raises `Error` naming the file when it cannot be
/// written; nothing of it stays then.
[[nodiscard]] QString writeTemplateFile(const QString& templateName, Folders& folders,
                                        const QString& ending = QStringLiteral("htm"));

/// Loads the file into a template as the block `name`. When the template refuses, the user is told
/// so in a box and the result is false. Raises `Error` when the file cannot be read.
bool loadTemplateFile(HTMLTemplate& page, const QString& name, const QString& path,
                      UserPrompts& prompts);

} // namespace quillford
