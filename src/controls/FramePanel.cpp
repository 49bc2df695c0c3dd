#include "controls/FramePanel.h"

#include "controls/Theme.h"

#include <QPainter>

namespace quillford {

void FramePanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(theme::Frame, 1));
    painter.setBrush(theme::White);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
}

} // namespace quillford
