#include "shell/TabPicture.h"

#include "controls/Theme.h"

#include <QPainter>

namespace quillford {

namespace {

constexpr QRectF Mark(38, 6, 17, 17);
constexpr QRect Title(0, 25, 92, 16);

bool isSelected(TabLook look) {
    return look == TabLook::CompleteSelected || look == TabLook::IncompleteSelected;
}

bool isComplete(TabLook look) {
    return look == TabLook::Complete || look == TabLook::CompleteSelected;
}

} // namespace

TabPicture::TabPicture(QWidget* parent) : ClickLabel(parent) {}

void TabPicture::setLook(TabLook look) {
    look_ = look;
    tellLook();
    update();
}

void TabPicture::setSign(const QString& sign) {
    sign_ = sign;
    tellLook();
}

void TabPicture::tellLook() {
    QString name = text();
    if (isComplete(look_))
        name += QStringLiteral(", complete");
    if (isSelected(look_))
        name += QStringLiteral(", current");
    setAccessibleName(name);
}

void TabPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool selected = isSelected(look_);
    painter.setPen(QPen(selected ? theme::Heading : QColor(201, 207, 216), 1));
    painter.setBrush(selected ? theme::Heading : theme::White);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    drawMark(painter);
    QFont font = theme::captionFont();
    font.setBold(selected);
    painter.setFont(font);
    painter.setPen(selected ? theme::White : theme::Text);
    painter.drawText(Title, Qt::AlignCenter, text());
}

void TabPicture::drawMark(QPainter& painter) const {
    const bool selected = isSelected(look_);
    if (isComplete(look_)) {
        painter.setPen(selected ? QPen(theme::White, 1.5) : QPen(theme::Complete, 1));
        painter.setBrush(theme::Complete);
        painter.drawEllipse(Mark);
        painter.setPen(QPen(theme::White, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const QPointF corner = Mark.topLeft();
        painter.drawPolyline(QPolygonF{corner + QPointF(4.8, 8.8), corner + QPointF(7.6, 11.6),
                                       corner + QPointF(12.4, 5.8)});
        return;
    }
    painter.setPen(QPen(selected ? theme::White : theme::MutedText, 1.2));
    painter.setBrush(theme::White);
    painter.drawEllipse(Mark);
    QFont font = theme::captionFont();
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(selected ? theme::Heading : theme::MutedText);
    painter.drawText(Mark, Qt::AlignCenter, sign_);
}

} // namespace quillford
