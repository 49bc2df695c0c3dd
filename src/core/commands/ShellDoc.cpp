#include "core/commands/ShellDoc.h"

namespace quillford {

void ShellDoc(const QString& document, DocumentOpener& opener) {
    if (opener.open(document) == DocumentOpener::Result::NoProgram)
        opener.askForProgram(document);
}

} // namespace quillford
