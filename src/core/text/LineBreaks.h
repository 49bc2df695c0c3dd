#pragma once

#include "platform/TextMeasure.h"

#include <QString>
#include <QStringList>

/// The fitting of text into lines and captions. Widths are logical pixels, and a text is measured
/// no further than it takes to see that it is too wide, so that long texts cost what short ones do.
namespace quillford {

enum class BreakMode {
    BreakWord, ///< a line ends after a blank
    BreakAll,  ///< a line ends between any two characters
};

/// How many characters of `text`, counted in UTF-16, stay on a line of `width`: all of them when
/// they fit exactly or better. A text too wide is broken after its last blank, wherever that
/// stands, or with `BreakAll` before the first character that does not fit, which may leave 0. A
/// text without a blank that is too wide is always broken between characters. The two halves of a
/// character are never parted.
[[nodiscard]] qsizetype findBreakPosition(QStringView text, double width, BreakMode mode,
                                          const TextMeasure& measure,
                                          TextWeight weight = TextWeight::Regular);

/// The text as it stands when it is narrower than `width` after each of its words; otherwise as
/// much of it as fits, up to the first word that reaches `width`, without blanks at its ends, with
/// "..." behind it and then, where `closeBracket` is true, ")". The dots come on top of the width.
[[nodiscard]] QString fitCaptionToWidth(const QString& text, double width, bool closeBracket,
                                        const TextMeasure& measure);

/// The text set in lines, word by word, as soon as a line reaches `width`. Words are divided by
/// blanks; blanks at the beginning of the text stay, those at the ends of lines go. A text of
/// blanks has no lines; every line takes at least one character, however narrow the width.
[[nodiscard]] QStringList wrapIntoLines(QStringView text, double width, TextWeight weight,
                                        const TextMeasure& measure);

} // namespace quillford
