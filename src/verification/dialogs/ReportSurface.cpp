#include "verification/dialogs/ReportSurface.h"

#include "controls/ButtonRole.h"
#include "controls/HandCursor.h"
#include "controls/Theme.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace quillford {

ReportSurface::ReportSurface(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
}

void ReportSurface::draw(const Report& report, const QFont& font, int lineHeight) {
    report_ = report;
    font_ = font;
    lineHeight_ = lineHeight;
    marked_ = 0;
    resize(width(), report.height);
    QStringList texts;
    for (const ReportLine& line : report.lines)
        texts.append(line.text);
    setAccessibleDescription(texts.join(u'\n'));
    setCursor(report.cells.isEmpty() ? QCursor() : handCursor());
    update();
}

void ReportSurface::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), theme::White);
    if (hasFocus() && !report_.cells.isEmpty())
        painter.fillRect(placeOf(marked_), theme::Tint);
    for (const ReportLine& line : report_.lines) {
        QFont font = font_;
        font.setBold(line.weight == TextWeight::Bold);
        painter.setFont(font);
        painter.setPen(line.entry ? theme::Heading : theme::Text);
        painter.drawText(line.x, line.y + painter.fontMetrics().ascent(), line.text);
    }
}

void ReportSurface::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton ? entryAt(event->pos()) : std::nullopt;
    event->accept();
}

void ReportSurface::mouseReleaseEvent(QMouseEvent* event) {
    const auto pressed = std::exchange(pressed_, std::nullopt);
    if (!pressed || event->button() != Qt::LeftButton || pressed != entryAt(event->pos()))
        return;
    mark(*pressed);
    Q_EMIT entryActivated(*pressed);
}

void ReportSurface::keyPressEvent(QKeyEvent* event) {
    if (report_.cells.isEmpty())
        return QWidget::keyPressEvent(event);
    if (event->key() == Qt::Key_Down)
        mark(marked_ + 1);
    else if (event->key() == Qt::Key_Up)
        mark(marked_ - 1);
    else if (isClickKey(*event))
        Q_EMIT entryActivated(marked_);
    else
        QWidget::keyPressEvent(event);
}

void ReportSurface::focusInEvent(QFocusEvent*) {
    update();
}

void ReportSurface::focusOutEvent(QFocusEvent*) {
    update();
}

QRect ReportSurface::placeOf(qsizetype entry) const {
    QRect place;
    for (const ReportLine& line : report_.lines)
        if (line.entry == entry)
            place |= QRect(0, line.y, width(), lineHeight_);
    return place;
}

std::optional<qsizetype> ReportSurface::entryAt(QPoint place) const {
    for (qsizetype entry = 0; entry < report_.cells.size(); ++entry)
        if (placeOf(entry).contains(place))
            return entry;
    return std::nullopt;
}

void ReportSurface::mark(qsizetype entry) {
    marked_ = std::clamp<qsizetype>(entry, 0, report_.cells.size() - 1);
    const QRect place = placeOf(marked_);
    Q_EMIT entryMarked(place.top(), place.bottom() + 1);
    update();
}

} // namespace quillford
