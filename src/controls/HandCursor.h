#pragma once

#include <QCursor>

namespace quillford {

/// The program's own hand, the pointer over what can be clicked.
[[nodiscard]] QCursor handCursor();

} // namespace quillford
