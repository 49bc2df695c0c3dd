#include "platform/linux/QtTextMeasure.h"

#include <QString>

#include <cmath>

namespace quillford {

QtTextMeasure::QtTextMeasure()
    : regular_(font(TextWeight::Regular)), bold_(font(TextWeight::Bold)) {}

QFont QtTextMeasure::font(TextWeight weight) {
    constexpr int Pixels = 11;
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(Pixels);
    font.setBold(weight == TextWeight::Bold);
    // Kerning would make the width of a text depend on what comes after it.
    font.setKerning(false);
    return font;
}

double QtTextMeasure::width(QStringView text, TextWeight weight) const {
    // Half a character at the end would be drawn as a box, which may be wider than the whole one.
    if (!text.isEmpty() && text.back().isHighSurrogate())
        text.chop(1);
    const QFontMetricsF& metrics = weight == TextWeight::Bold ? bold_ : regular_;
    return metrics.horizontalAdvance(text.toString());
}

int QtTextMeasure::lineHeight() const {
    return static_cast<int>(std::ceil(regular_.height()));
}

} // namespace quillford
