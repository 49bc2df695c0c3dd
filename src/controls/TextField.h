#pragma once

#include "controls/SpellMarks.h"
#include "controls/TypingLimit.h"

#include <QPlainTextEdit>
#include <QTextBlock>

namespace quillford {

/// A box of several lines of plain text, with a line feed between two lines. Tab leaves it. Unknown
/// words have a wavy line while the spell checker is bound to the field.
///
/// A text with a run of more than 2,000 characters without a blank wraps at any character from then
/// on: the toolkit's search for a better place takes half a minute in a run of a megabyte.
class TextField : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit TextField(QWidget* parent = nullptr);

    /// Shows the text, however long it is. Each of CR LF, CR and the paragraph separator becomes a
    /// line feed; every other character stays. Does not emit `edited`.
    void showText(const QString& text);

    /// The text as it was shown or typed. Call it in place of the toolkit's, which makes blanks of
    /// no-break spaces.
    [[nodiscard]] QString text() const;

    /// The longest text that can be typed or pasted, in UTF-16 code units, a line end counting as
    /// one; 0 for no limit.
    void setLimit(int limit);

    /// Whether Enter adds nothing to the text. Line ends that are pasted are kept all the same.
    void setEnterSwallowed(bool on) { enterSwallowed_ = on; }

    /// Gives the field the tint of an empty required field, or takes it away.
    void setTint(bool on);

    [[nodiscard]] bool isTinted() const { return tinted_; }

Q_SIGNALS:
    /// The user typed, pasted, cut, dropped or took something back.
    void edited(const QString& text);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] qsizetype staying() const;
    void typeEnter();
    void wrapFor(QStringView text);
    void textTyped();
    void offerWords(QMenu& menu, const QTextCursor& place);
    void paintMarks(const QTextBlock& block, const QRectF& place);

    SpellMarks marks_{*this, *viewport()};
    TypingLimit limit_;
    bool enterSwallowed_ = false;
    bool tinted_ = false;
    bool showing_ = false;
};

} // namespace quillford
