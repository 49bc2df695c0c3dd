#pragma once

#include <QRegion>
#include <QSize>

namespace quillford {

/// The outline of a window of this size in logical pixels: a rectangle whose corners are quarters
/// of an ellipse 11 wide and 12 high.
[[nodiscard]] QRegion roundedOutline(const QSize& size);

} // namespace quillford
