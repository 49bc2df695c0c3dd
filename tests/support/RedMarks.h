#pragma once

#include "controls/Theme.h"

#include <QImage>
#include <QWidget>

#include <optional>

namespace quillford {

/// From the first column to the last.
struct Columns {
    int first;
    int last;
};

inline bool isRed(QRgb pixel) {
    return qRed(pixel) > 150 && qGreen(pixel) < 150 && qBlue(pixel) < 150;
}

inline bool isDark(QRgb pixel) {
    return qGray(pixel) < 110 && !isRed(pixel);
}

/// Where a widget shows what `wanted` says, or nothing.
template <typename Wanted>
std::optional<Columns> columnsOf(QWidget& widget, Wanted wanted) {
    const QImage image = widget.grab().toImage();
    std::optional<Columns> found;
    // Not at the frame of a field, which has colours of its own.
    for (int x = 3; x < image.width() - 3; ++x)
        for (int y = 3; y < image.height() - 3; ++y)
            if (wanted(image.pixel(x, y)))
                found = Columns{found ? found->first : x, x};
    return found;
}

/// Where a widget shows wavy lines.
inline std::optional<Columns> marksOf(QWidget& widget) {
    return columnsOf(widget, isRed);
}

} // namespace quillford
