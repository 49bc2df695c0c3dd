#include "controls/Picture.h"

#include <QPainter>

namespace quillford {

Picture::Picture(QWidget* parent) : ClickLabel(parent) {
    drawing_.setAspectRatioMode(Qt::KeepAspectRatio);
}

void Picture::setFile(const QString& file) {
    if (file_ == file)
        return;
    file_ = file;
    drawing_.load(QStringLiteral(":/pictures/%1.svg").arg(file));
    update();
}

void Picture::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    drawing_.render(&painter, contentsRect());
    painter.end();
    ClickLabel::paintEvent(event);
}

} // namespace quillford
