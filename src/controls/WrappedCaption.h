#pragma once

#include <QFont>
#include <QString>

namespace quillford {

/// The height in logical pixels of a caption that a label of this width wraps at its blanks: 13 for
/// each line, as the designed places count. A text that is empty takes a line.
[[nodiscard]] int wrappedHeight(const QString& text, int width, const QFont& font);

} // namespace quillford
