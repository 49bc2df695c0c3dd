#pragma once

#include "platform/TextMeasure.h"

namespace quillford {

/// A font in which every character is 10 pixels wide, 12 in bold, and a line 13 high. Counts the
/// characters that it was given to measure.
class FakeTextMeasure final : public TextMeasure {
public:
    [[nodiscard]] double width(QStringView text, TextWeight weight) const override {
        measured += text.size();
        return static_cast<double>(text.size()) * (weight == TextWeight::Bold ? 12 : 10);
    }

    [[nodiscard]] int lineHeight() const override { return 13; }

    mutable qint64 measured = 0;
};

} // namespace quillford
