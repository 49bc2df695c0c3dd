#pragma once

#include "controls/Spelling.h"

#include <QObject>

#include <functional>
#include <optional>

class QMenu;
class QPainter;
class QWidget;

namespace quillford {

/// The spelling of one field: none until it is bound to a spelling. A field that can show unknown
/// words has one of these as its child, asks it for the words while it paints, and lets it put what
/// can be done about a word at the head of its menu.
class SpellMarks : public QObject {
    Q_OBJECT

public:
    /// `surface` is the widget on which the field paints its text; the field itself owns the marks.
    SpellMarks(QWidget& field, QWidget& surface);

    /// The marks of a field, or null when it can show none.
    [[nodiscard]] static SpellMarks* of(const QWidget& field);

    /// Shows unknown words from now on, or none more where `spelling` is null; otherwise it
    /// outlives the binding.
    void bindTo(Spelling* spelling);

    [[nodiscard]] bool isBound() const { return spelling_ != nullptr; }

    /// The unknown words of the text that touch the part from `from` to `to`; none while unbound.
    [[nodiscard]] QList<TextRange> words(QStringView text, qsizetype from, qsizetype to) const;

    /// The unknown word at a place between two characters.
    [[nodiscard]] std::optional<TextRange> wordAt(QStringView text, qsizetype place) const;

    /// Puts suggestions, "Add to Dictionary" and "Ignore" before what stands in the menu.
    /// `replace` is called when a suggestion is chosen, and is not called for a field that is only
    /// read: leave it empty then, and nothing is suggested.
    void offer(QMenu& menu, const QString& word, const std::function<void(QString)>& replace);

    /// Paints the line under a word: a wave from `left` to `right` just below the base line.
    static void paintWave(QPainter& painter, qreal left, qreal right, qreal baseLine);

private:
    QWidget& surface_;
    Spelling* spelling_ = nullptr;
};

} // namespace quillford
