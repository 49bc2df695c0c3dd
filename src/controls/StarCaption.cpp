#include "controls/StarCaption.h"

#include <QTextLayout>

#include <cmath>

namespace quillford {

namespace {

/// Where the last character begins, wrapped as the label wraps.
QPointF lastCharacter(const QLabel& label) {
    QTextLayout layout(label.text(), label.font());
    layout.beginLayout();
    qreal top = 0;
    QPointF place;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(label.width());
        place = {line.cursorToX(static_cast<int>(label.text().size()) - 1), top};
        top += line.height();
    }
    layout.endLayout();
    return place;
}

} // namespace

void showStarAlone(QLabel& label) {
    const QPointF place = lastCharacter(label);
    const QPoint corner(static_cast<int>(std::floor(place.x())),
                        static_cast<int>(std::floor(place.y())));
    label.setMask(QRegion(QRect(corner, label.rect().bottomRight())));
}

} // namespace quillford
