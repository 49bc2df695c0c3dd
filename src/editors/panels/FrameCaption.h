#pragma once

#include <QLabel>

namespace quillford {

/// Writes the title of a panel into the line of the panel's frame, which it covers. The label
/// becomes as wide as the text and a little more; its top and height stay.
void showFrameCaption(QLabel& label, const QString& text);

} // namespace quillford
