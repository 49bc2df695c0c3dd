#include "controls/ClickLabel.h"

#include "controls/ButtonRole.h"

#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace quillford {

ClickLabel::ClickLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    giveButtonRole(*this);
}

void ClickLabel::click() {
    if (isEnabled())
        Q_EMIT clicked();
}

void ClickLabel::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton;
    event->accept();
}

void ClickLabel::mouseReleaseEvent(QMouseEvent* event) {
    const bool wasPressed = std::exchange(pressed_, false);
    if (wasPressed && event->button() == Qt::LeftButton && rect().contains(event->pos()))
        click();
}

void ClickLabel::keyPressEvent(QKeyEvent* event) {
    if (isClickKey(*event))
        return click();
    QLabel::keyPressEvent(event);
}

void ClickLabel::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    update();
}

void ClickLabel::focusOutEvent(QFocusEvent* event) {
    QLabel::focusOutEvent(event);
    update();
}

void ClickLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QStylePainter painter(this);
    QStyleOptionFocusRect mark;
    mark.initFrom(this);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, mark);
}

} // namespace quillford
