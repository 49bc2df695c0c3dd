#include "controls/LineField.h"

#include "controls/Theme.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <limits>
#include <memory>

namespace quillford {

namespace {

/// A text up to this length is laid out whole to find where its words stand, which is exact in
/// every script; of a longer one only what is seen, because each key press waits for it.
constexpr qsizetype LaidOutWhole = 2000;

/// The rectangle of the cursor begins this far to the left of the cursor itself.
constexpr int BeforeCursor = 5;

} // namespace

LineField::LineField(QWidget* parent) : QLineEdit(parent) {
    setMaxLength(std::numeric_limits<int>::max());
    connect(this, &QLineEdit::textEdited, this, &LineField::edited);
}

void LineField::showText(const QString& text) {
    if (text == this->text())
        return;
    // Where the user is typing, the text written anew is his own without the blanks at its ends.
    const auto behindCursor = this->text().size() - cursorPosition();
    setText(text);
    setCursorPosition(hasFocus() ? static_cast<int>(std::max(text.size() - behindCursor, 0LL)) : 0);
}

void LineField::setLimit(int limit) {
    limit_ = TypingLimit(limit);
}

void LineField::setTint(bool on) {
    tinted_ = on;
    theme::setTint(*this, on);
}

void LineField::paste() {
    insertFrom(QClipboard::Clipboard);
}

void LineField::contextMenuEvent(QContextMenuEvent* event) {
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    const QString pasteText = QLineEdit::tr("&Paste");
    for (QAction* action : menu->actions())
        if (action->text().startsWith(pasteText)) {
            action->disconnect(this);
            connect(action, &QAction::triggered, this, &LineField::paste);
        }
    offerWords(*menu, event->pos());
    menu->exec(event->globalPos());
}

void LineField::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    if (marks_.isBound())
        paintMarks();
}

/// What is dragged within the field is only moved: it is as long afterwards as before.
void LineField::dropEvent(QDropEvent* event) {
    if (event->source() == this && event->dropAction() == Qt::MoveAction) {
        QLineEdit::dropEvent(event);
        return;
    }
    QMimeData plain;
    plain.setText(prepared(event->mimeData()->text(), text().size()));
    QDropEvent prepared(event->position(), event->possibleActions(), &plain, event->buttons(),
                        event->modifiers());
    prepared.setDropAction(event->dropAction());
    QLineEdit::dropEvent(&prepared);
    event->setDropAction(prepared.dropAction());
    event->setAccepted(prepared.isAccepted());
}

void LineField::inputMethodEvent(QInputMethodEvent* event) {
    if (isReadOnly())
        return event->ignore();
    limit_.cut(*event, staying());
    QLineEdit::inputMethodEvent(event);
}

void LineField::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Paste))
        paste();
    else if (!limit_.refuses(*event, staying()))
        QLineEdit::keyPressEvent(event);
}

/// The middle button pastes what was last selected, where the desktop has that custom.
void LineField::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::MiddleButton || !QGuiApplication::clipboard()->supportsSelection()) {
        QLineEdit::mouseReleaseEvent(event);
        return;
    }
    deselect();
    insertFrom(QClipboard::Selection);
}

qsizetype LineField::staying() const {
    return text().size() - selectedText().size();
}

QString LineField::prepared(const QString& insertion, qsizetype staying) const {
    QString line = insertion;
    line.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    for (const QChar lineEnd : {QChar(u'\r'), QChar(u'\n'), QChar(QChar::LineSeparator),
                                QChar(QChar::ParagraphSeparator)})
        line.replace(lineEnd, u' ');
    return limit_.fitting(line, staying);
}

/// The toolkit has no call for it, but a cursor that moves ends what one undo takes back.
void LineField::endUndoStep() {
    if (hasSelectedText())
        return;
    const int place = cursorPosition();
    end(false);
    home(false);
    setCursorPosition(place);
}

void LineField::insertFrom(QClipboard::Mode mode) {
    if (isReadOnly())
        return;
    endUndoStep();
    insert(prepared(QGuiApplication::clipboard()->text(mode), staying()));
}

void LineField::offerWords(QMenu& menu, const QPoint& place) {
    const QString line = displayText();
    const auto word = marks_.wordAt(line, cursorPositionAt(place));
    if (!word)
        return;
    const auto replace = [this, word = *word](const QString& suggestion) {
        setSelection(static_cast<int>(word.start), static_cast<int>(word.length));
        insert(prepared(suggestion, staying()));
    };
    marks_.offer(menu, line.sliced(word->start, word->length),
                 isReadOnly() ? std::function<void(QString)>() : replace);
}

/// The toolkit tells where its cursor stands and nothing else about its line, so that the line is
/// laid out once more and put where the cursors meet.
void LineField::paintMarks() {
    const TextRange part = visiblePart();
    const QString line = displayText();
    const QList<TextRange> words = marks_.words(line, part.start, part.end());
    const qsizetype cursor = cursorPosition() - part.start;
    if (words.isEmpty() || cursor < 0 || cursor > part.length)
        return;
    QTextLayout layout(line.sliced(part.start, part.length), font(), this);
    QTextOption option;
    option.setTextDirection(line.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine shown = layout.createLine();
    layout.endLayout();
    const auto x = [&](qsizetype i) {
        return shown.cursorToX(
            static_cast<int>(std::clamp<qsizetype>(i - part.start, 0, part.length)));
    };
    const qreal left = cursorRect().left() + BeforeCursor - x(cursorPosition());
    QPainter painter(this);
    painter.setClipRect(rect().adjusted(3, 1, -3, -1));
    for (const TextRange& word : words) {
        const auto [from, to] = std::minmax({x(word.start), x(word.end())});
        SpellMarks::paintWave(painter, left + from, left + to, cursorRect().top() + shown.ascent());
    }
}

TextRange LineField::visiblePart() {
    const qsizetype size = displayText().size();
    if (size <= LaidOutWhole)
        return {0, size};
    const int middle = height() / 2;
    const int from = cursorPositionAt({0, middle});
    const int to = cursorPositionAt({width(), middle});
    return {std::min(from, to), std::abs(to - from)};
}

} // namespace quillford
