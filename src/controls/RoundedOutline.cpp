#include "controls/RoundedOutline.h"

#include <QPainterPath>

namespace quillford {

namespace {

constexpr double EllipseWidth = 11;
constexpr double EllipseHeight = 12;

} // namespace

QRegion roundedOutline(const QSize& size) {
    QPainterPath outline;
    outline.addRoundedRect(QRectF(QPointF(0, 0), size), EllipseWidth / 2, EllipseHeight / 2);
    return QRegion(outline.toFillPolygon().toPolygon());
}

} // namespace quillford
