#pragma once

#include <QStringView>

namespace quillford {

enum class TextWeight { Regular, Bold };

/// The size of text in the font in which the Index of Elements is drawn, in logical pixels. A text
/// is measured as one line, and a longer text is never narrower than its beginning.
class TextMeasure {
public:
    virtual ~TextMeasure() = default;

    /// Takes time in proportion to the length of the text.
    [[nodiscard]] virtual double width(QStringView text, TextWeight weight) const = 0;

    /// The height of a line.
    [[nodiscard]] virtual int lineHeight() const = 0;
};

} // namespace quillford
