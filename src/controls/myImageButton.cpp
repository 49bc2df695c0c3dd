#include "controls/myImageButton.h"

#include "controls/ButtonFace.h"
#include "controls/ButtonRole.h"

#include <QEvent>

namespace quillford {

myImageButton::myImageButton(QWidget* parent) : QWidget(parent), picbutton_(new ButtonFace(*this)) {
    setFocusPolicy(Qt::StrongFocus);
    giveButtonRole(*this);
}

void myImageButton::setCaption(const QString& caption) {
    caption_ = caption;
    setAccessibleName(caption);
    picbutton_->update();
}

void myImageButton::setFilled(bool filled) {
    filled_ = filled;
    picbutton_->update();
}

void myImageButton::setButtonPicture(const QPixmap& picture) {
    picture_ = picture;
    picbutton_->update();
}

void myImageButton::setBackColor(const QColor& colour) {
    backColor_ = colour;
    picbutton_->update();
}

void myImageButton::click() {
    if (isEnabled())
        Q_EMIT clicked();
}

void myImageButton::resizeEvent(QResizeEvent*) {
    picbutton_->setGeometry(rect());
}

void myImageButton::focusInEvent(QFocusEvent* event) {
    hasFocus_ = true;
    picbutton_->update();
    QWidget::focusInEvent(event);
}

void myImageButton::focusOutEvent(QFocusEvent* event) {
    hasFocus_ = false;
    picbutton_->update();
    QWidget::focusOutEvent(event);
}

void myImageButton::keyPressEvent(QKeyEvent* event) {
    if (isClickKey(*event))
        return click();
    QWidget::keyPressEvent(event);
}

void myImageButton::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        picbutton_->update();
}

} // namespace quillford
