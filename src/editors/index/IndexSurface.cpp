#include "editors/index/IndexSurface.h"

#include <QPainter>
#include <QStringList>

namespace quillford {

namespace {

QFont emboldened(QFont font) {
    font.setBold(true);
    return font;
}

QString asText(const ElementIndex& index) {
    QStringList texts;
    for (const IndexLine& line : index.lines)
        texts.append(line.text);
    return texts.join(u' ');
}

} // namespace

IndexSurface::IndexSurface(QWidget& view, const QFont& font)
    : QWidget(&view), regular_(font), bold_(emboldened(font)) {
    setFocusPolicy(Qt::ClickFocus);
    setAccessibleName(QStringLiteral("Index of Elements"));
    draw({{}, 0});
}

void IndexSurface::draw(const ElementIndex& index) {
    index_ = index;
    resize(ElementIndexWidth, index.height);
    setAccessibleDescription(asText(index));
    update();
}

void IndexSurface::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    // A drawing stays as dark as it is when the index is disabled: it is still to be read.
    painter.setPen(palette().color(QPalette::Active, QPalette::WindowText));
    for (const IndexLine& line : index_.lines) {
        painter.setFont(line.weight == TextWeight::Bold ? bold_ : regular_);
        painter.drawText(line.x, line.y + painter.fontMetrics().ascent(), line.text);
    }
}

} // namespace quillford
