#pragma once

#include <QList>
#include <QPixmap>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QWidget>

namespace quillford {

/// The panels of a section as a plain loop over the toolkit's own widgets makes them: as many, of
/// the same kinds, in the same places and with the same texts, and with nothing behind them.
class BareWidgets {
public:
    /// Notes the panels, each with all that stands in it.
    explicit BareWidgets(const QList<QWidget*>& panels);

    /// Makes all panels but the first on `view`, which owns them, and shows them.
    void make(QWidget& view);

    /// Destroys them, the last one first.
    void drop();

    /// How many widgets `make` makes, not counting those inside the toolkit's.
    [[nodiscard]] qsizetype count() const { return notes_.size(); }

private:
    enum class Kind { Widget, Label, Line, Text, List };

    struct Note {
        Kind kind;
        qsizetype parent; ///< the place of its parent in the notes; -1 for a panel
        QRect place;
        QString text;
        QStringList rows;
        QPixmap picture;
        bool takesTyping;
        bool hidden;
    };

    void note(const QWidget& widget, qsizetype parent);
    [[nodiscard]] static QWidget* makeOne(const Note& note, QWidget* parent);

    QList<Note> notes_;
    QList<QWidget*> panels_; ///< those that stand; the view owns them
};

} // namespace quillford
