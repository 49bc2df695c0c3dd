#pragma once

#include "platform/TextMeasure.h"

#include <QFont>
#include <QFontMetricsF>

namespace quillford {

/// Text as the toolkit draws it. It can be made once a QGuiApplication exists and must not outlive
/// that. Where the letters of a script join, one may lose a pixel or two of its width to the letter
/// that follows; a line of such a text may end one character early or late.
class QtTextMeasure final : public TextMeasure {
public:
    QtTextMeasure();

    /// The font that is measured, and in which a text has to be drawn to come out as wide.
    [[nodiscard]] static QFont font(TextWeight weight);

    [[nodiscard]] double width(QStringView text, TextWeight weight) const override;

    [[nodiscard]] int lineHeight() const override;

private:
    QFontMetricsF regular_;
    QFontMetricsF bold_;
};

} // namespace quillford
