#include "controls/SpellMarks.h"

#include "controls/Theme.h"

#include <QMenu>
#include <QPainter>
#include <QPolygonF>
#include <QWidget>

#include <utility>

namespace quillford {

SpellMarks::SpellMarks(QWidget& field, QWidget& surface) : QObject(&field), surface_(surface) {}

SpellMarks* SpellMarks::of(const QWidget& field) {
    return field.findChild<SpellMarks*>(QString(), Qt::FindDirectChildrenOnly);
}

void SpellMarks::bindTo(Spelling* spelling) {
    spelling_ = spelling;
    surface_.update();
}

QList<TextRange> SpellMarks::words(QStringView text, qsizetype from, qsizetype to) const {
    return spelling_ ? spelling_->unknownWords(text, from, to) : QList<TextRange>();
}

std::optional<TextRange> SpellMarks::wordAt(QStringView text, qsizetype place) const {
    const QList<TextRange> touching = words(text, place, place);
    return touching.isEmpty() ? std::nullopt : std::optional(touching.first());
}

void SpellMarks::offer(QMenu& menu, const QString& word,
                       const std::function<void(QString)>& replace) {
    QAction* const rest = menu.actions().value(0);
    const auto add = [&](QString text, std::function<void()> act) {
        auto* action = new QAction(text.replace(u'&', QStringLiteral("&&")), &menu);
        connect(action, &QAction::triggered, this, std::move(act));
        menu.insertAction(rest, action);
    };
    if (replace)
        for (const QString& suggestion : spelling_->suggestions(word))
            add(suggestion, [replace, suggestion] { replace(suggestion); });
    menu.insertSeparator(rest);
    add(QStringLiteral("Add to Dictionary"), [this, word] {
        if (spelling_)
            spelling_->addToDictionary(word);
        surface_.update();
    });
    add(QStringLiteral("Ignore"), [this, word] {
        if (spelling_)
            spelling_->ignore(word);
        surface_.update();
    });
    menu.insertSeparator(rest);
}

void SpellMarks::paintWave(QPainter& painter, qreal left, qreal right, qreal baseLine) {
    constexpr qreal Step = 2;
    constexpr qreal Height = 2;
    QPolygonF wave;
    bool isLow = false;
    for (qreal x = left; x <= right; x += Step, isLow = !isLow)
        wave.append({x, baseLine + 1.5 + (isLow ? Height : 0)});
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(theme::Star, 1));
    painter.drawPolyline(wave);
    painter.restore();
}

} // namespace quillford
