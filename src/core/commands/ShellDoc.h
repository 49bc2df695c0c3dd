#pragma once

#include "platform/DocumentOpener.h"

#include <QString>

namespace quillford {

/// Opens a document or an address with the program that the user has for it; where there is none,
/// the desktop asks for one. Nothing is told when that fails.
void ShellDoc(const QString& document, DocumentOpener& opener);

} // namespace quillford
