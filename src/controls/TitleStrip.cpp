#include "controls/TitleStrip.h"

#include "controls/Theme.h"

#include <QLinearGradient>
#include <QPainter>

namespace quillford {

void paintTitleStrip(QPainter& painter, const QRect& strip) {
    QLinearGradient ground(strip.topLeft(), strip.bottomLeft());
    ground.setColorAt(0, QColor(64, 121, 214));
    ground.setColorAt(1, theme::Heading);
    painter.fillRect(strip, ground);
}

void paintOutline(QPainter& painter, const QRect& window) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(theme::Frame, 1));
    painter.drawRoundedRect(QRectF(window).adjusted(0.5, 0.5, -0.5, -0.5), 5.5, 6);
    painter.restore();
}

} // namespace quillford
