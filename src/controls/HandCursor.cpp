#include "controls/HandCursor.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace quillford {

namespace {

QPixmap drawnHand(qreal scale) {
    constexpr int Size = 24;
    QPixmap picture(QSize(Size, Size) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QSvgRenderer(QStringLiteral(":/pictures/HAND.svg")).render(&painter, QRectF(0, 0, Size, Size));
    return picture;
}

} // namespace

QCursor handCursor() {
    constexpr QPoint FingerTip{9, 2};
    const qreal scale = qGuiApp->devicePixelRatio();
    // Every panel asks for it, and drawing it takes as long as making two fields.
    const QString key = QStringLiteral("hand cursor %1").arg(scale);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = drawnHand(scale);
        QPixmapCache::insert(key, picture);
    }
    return QCursor(picture, FingerTip.x(), FingerTip.y());
}

} // namespace quillford
