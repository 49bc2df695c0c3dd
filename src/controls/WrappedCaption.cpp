#include "controls/WrappedCaption.h"

#include <QFontMetrics>

#include <algorithm>
#include <limits>

namespace quillford {

int wrappedHeight(const QString& text, int width, const QFont& font) {
    constexpr int LineHeight = 13;
    const QFontMetrics metrics(font);
    const QRect lines = metrics.boundingRect(0, 0, width, std::numeric_limits<short>::max(),
                                             Qt::TextWordWrap, text);
    return std::max(1, lines.height() / metrics.lineSpacing()) * LineHeight;
}

} // namespace quillford
