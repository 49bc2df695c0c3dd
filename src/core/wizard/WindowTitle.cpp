#include "core/wizard/WindowTitle.h"

namespace quillford {

namespace {

constexpr QStringView Program = u"Quillford 3.1";

} // namespace

void WindowTitle::SetWindowTitle(const QString& fileName) {
    if (!fileName.isEmpty())
        fileName_ = fileName;
    screen_.setCaption(Program.toString() + QStringLiteral(" - ") + fileName_);
}

void WindowTitle::showProgramAlone() {
    screen_.setCaption(Program.toString());
}

} // namespace quillford
