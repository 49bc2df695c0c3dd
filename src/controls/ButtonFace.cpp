#include "controls/ButtonFace.h"

#include "controls/Theme.h"
#include "controls/myImageButton.h"

#include <QMouseEvent>
#include <QPainter>

namespace quillford {

ButtonFace::ButtonFace(myImageButton& button) : QLabel(&button), button_(button) {
    setObjectName(QStringLiteral("picbutton"));
    setAttribute(Qt::WA_Hover);
}

void ButtonFace::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton;
    button_.setFocus(Qt::MouseFocusReason);
    update();
    event->accept();
}

void ButtonFace::mouseReleaseEvent(QMouseEvent* event) {
    const bool wasPressed = std::exchange(pressed_, false);
    update();
    if (wasPressed && event->button() == Qt::LeftButton && rect().contains(event->pos()))
        button_.click();
}

void ButtonFace::enterEvent(QEnterEvent*) {
    update();
}

void ButtonFace::leaveEvent(QEvent*) {
    update();
}

void ButtonFace::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (button_.backColor_.isValid())
        painter.fillRect(rect(), button_.backColor_);
    if (button_.picture_.isNull())
        drawFace(painter);
    else
        painter.drawPixmap(rect(), button_.picture_);
    if (button_.hasFocus_)
        drawFocusMark(painter);
}

void ButtonFace::drawFace(QPainter& painter) const {
    const bool enabled = button_.isEnabled();
    const QColor main = !enabled       ? theme::Disabled
                        : pressed_     ? theme::HeadingDark
                        : underMouse() ? theme::HeadingDark
                                       : theme::Heading;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(main, 1));
    painter.setBrush(button_.filled_ ? main : theme::White);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    QFont font = theme::fieldFont();
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(button_.filled_ ? theme::White : enabled ? main : theme::MutedText);
    painter.drawText(rect(), Qt::AlignCenter, button_.caption_);
}

void ButtonFace::drawFocusMark(QPainter& painter) const {
    painter.setRenderHint(QPainter::Antialiasing, false);
    QPen pen(button_.filled_ && button_.picture_.isNull() ? theme::White : theme::Text, 1);
    pen.setDashPattern({1, 1});
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(MarkInset, MarkInset, width() - 2 * MarkInset - 1,
                     height() - 2 * MarkInset - 1);
}

} // namespace quillford
