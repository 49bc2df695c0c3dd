#pragma once

#include "core/fields/ProjectFields.h"
#include "editors/rules/ScrollBarState.h"
#include "platform/TextMeasure.h"

#include <QList>
#include <QString>

/// What the Index of Elements beside the sections shows: a table of all Main Elements and
/// Sub-Elements with their Reference Numerals, drawn on a surface that is as high as its text.
/// Lengths are logical pixels.
namespace quillford {

/// The width of the surface, `picIndexOfMainElementD`.
inline constexpr int ElementIndexWidth = 179;

/// A text on the surface; `x` and `y` are its upper left corner.
struct IndexLine {
    int x;
    int y;
    QString text;
    TextWeight weight;

    friend bool operator==(const IndexLine&, const IndexLine&) = default;
};

struct ElementIndex {
    QList<IndexLine> lines;
    int height = 1; ///< of the surface; 1 while there is nothing on it
};

/// What `RebuildElementIndex` draws. Names are those of Section 5, Sub-Elements those of Section 6
/// as far as it has panels; a field without text leaves neither a line nor a number.
[[nodiscard]] ElementIndex layOutElementIndex(const ProjectFields& fields,
                                              const TextMeasure& measure);

/// The scroll bar `VScroll1` for a surface of this height in a view of that height; the value is 0.
[[nodiscard]] ScrollBarState elementIndexBar(int surfaceHeight, int viewHeight);

} // namespace quillford
