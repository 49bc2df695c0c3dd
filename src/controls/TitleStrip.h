#pragma once

#include <QRect>

class QPainter;

namespace quillford {

/// The ground of the strip at the head of every window of the program.
void paintTitleStrip(QPainter& painter, const QRect& strip);

/// The thin line around a window.
void paintOutline(QPainter& painter, const QRect& window);

} // namespace quillford
