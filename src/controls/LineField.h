#pragma once

#include "controls/SpellMarks.h"
#include "controls/TypingLimit.h"

#include <QClipboard>
#include <QLineEdit>

namespace quillford {

/// A field of one line. What is pasted or dropped into it keeps every character but line ends,
/// each of which becomes a blank. Unknown words have a
/// wavy line while the spell checker is bound to the field.
class LineField : public QLineEdit {
    Q_OBJECT

public:
    explicit LineField(QWidget* parent = nullptr);

    /// Shows the text as it stands, however long it is. Does not emit `edited`.
    void showText(const QString& text);

    /// The longest text that can be typed or pasted, in UTF-16 code units; 0 for no limit. Call it
    /// in place of `setMaxLength`, which cuts what is there already.
    void setLimit(int limit);

    /// Gives the field the tint of an empty required field, or takes it away.
    void setTint(bool on);

    [[nodiscard]] bool isTinted() const { return tinted_; }

    /// Call it in place of the toolkit's, which knows neither line ends nor the limit.
    void paste();

Q_SIGNALS:
    /// The user typed, pasted, cut, dropped or took something back.
    void edited(const QString& text);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] qsizetype staying() const;
    [[nodiscard]] QString prepared(const QString& insertion, qsizetype staying) const;
    void endUndoStep();
    void insertFrom(QClipboard::Mode mode);
    void offerWords(QMenu& menu, const QPoint& place);
    void paintMarks();
    [[nodiscard]] TextRange visiblePart();

    SpellMarks marks_{*this, *this};
    TypingLimit limit_;
    bool tinted_ = false;
};

} // namespace quillford
