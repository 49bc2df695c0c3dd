#include "controls/HandCursor.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace quillford {

QCursor handCursor() {
    constexpr int Size = 24;
    constexpr QPoint FingerTip{9, 2};
    const qreal scale = qGuiApp->devicePixelRatio();
    QPixmap picture(QSize(Size, Size) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QSvgRenderer(QStringLiteral(":/pictures/HAND.svg")).render(&painter, QRectF(0, 0, Size, Size));
    painter.end();
    return QCursor(picture, FingerTip.x(), FingerTip.y());
}

} // namespace quillford
