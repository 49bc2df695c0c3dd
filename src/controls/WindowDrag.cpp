#include "controls/WindowDrag.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QWindow>

namespace quillford {

namespace {

/// A window cannot place itself on Wayland; there the system moves it, from the first movement on.
bool windowsPlaceThemselves() {
    return !QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

} // namespace

WindowDrag::WindowDrag(QWidget& strip) : QObject(&strip), strip_(strip) {
    strip_.installEventFilter(this);
}

void WindowDrag::StartMove() {
    strip_.setCursor(Qt::SizeAllCursor);
    QCursor::setPos(strip_.mapToGlobal(strip_.rect().center()));
}

bool WindowDrag::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() == Qt::LeftButton)
            press(mouse->pos());
        else if (mouse->button() == Qt::RightButton)
            Q_EMIT menuWanted(mouse->globalPosition().toPoint());
    } else if (event->type() == QEvent::MouseMove) {
        move(static_cast<QMouseEvent*>(event)->pos());
    } else if (event->type() == QEvent::MouseButtonRelease) {
        release();
    }
    return QObject::eventFilter(watched, event);
}

void WindowDrag::press(const QPoint& place) {
    strip_.setCursor(Qt::SizeAllCursor);
    dragging_ = true;
    movedBySystem_ = false;
    dragStart_ = place;
}

void WindowDrag::move(const QPoint& place) {
    if (!dragging_ || movedBySystem_ || place == dragStart_)
        return;
    QWidget& window = *strip_.window();
    if (windowsPlaceThemselves())
        window.move(window.pos() + place - dragStart_);
    else
        movedBySystem_ = window.windowHandle() && window.windowHandle()->startSystemMove();
}

void WindowDrag::release() {
    dragging_ = false;
    strip_.unsetCursor();
}

} // namespace quillford
