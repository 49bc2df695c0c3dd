#include "controls/TextField.h"

#include "controls/Theme.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QScopedValueRollback>
#include <QTextLayout>

#include <algorithm>
#include <memory>

namespace quillford {

namespace {

constexpr qsizetype LongestRun = 2000;

/// True when the text holds more than `LongestRun` characters between two blanks or line ends.
bool hasLongRun(QStringView text) {
    const auto endsRun = [](QChar c) { return c == u' ' || c == u'\n'; };
    for (auto run = text.begin(); text.end() - run > LongestRun;) {
        const auto end = std::find_if(run, text.end(), endsRun);
        if (end - run > LongestRun)
            return true;
        run = end == text.end() ? end : end + 1;
    }
    return false;
}

bool isEnter(const QKeyEvent& key) {
    return (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) &&
           !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

/// The toolkit parts the lines of a text by paragraph separators.
QString withLineFeeds(QString text) {
    return text.replace(QChar::ParagraphSeparator, u'\n');
}

} // namespace

TextField::TextField(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, &TextField::textTyped);
}

void TextField::showText(const QString& text) {
    if (text == this->text())
        return;
    const QScopedValueRollback showing(showing_, true);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    wrapFor(text);
    setPlainText(text);
}

QString TextField::text() const {
    return withLineFeeds(document()->toRawText());
}

void TextField::setLimit(int limit) {
    limit_ = TypingLimit(limit);
}

void TextField::setTint(bool on) {
    tinted_ = on;
    theme::setTint(*this, on);
}

void TextField::contextMenuEvent(QContextMenuEvent* event) {
    const std::unique_ptr<QMenu> menu(createStandardContextMenu(event->pos()));
    offerWords(*menu, cursorForPosition(event->pos()));
    menu->exec(event->globalPos());
}

/// Plain text alone: other programs would otherwise take over the font of the field.
QMimeData* TextField::createMimeDataFromSelection() const {
    auto* const selection = new QMimeData;
    selection->setText(withLineFeeds(textCursor().selectedText()));
    return selection;
}

void TextField::inputMethodEvent(QInputMethodEvent* event) {
    limit_.cut(*event, staying());
    QPlainTextEdit::inputMethodEvent(event);
}

void TextField::insertFromMimeData(const QMimeData* source) {
    if (isReadOnly() || !source->hasText())
        return;
    const QString text = limit_.fitting(source->text(), staying());
    wrapFor(text);
    textCursor().insertText(text);
    ensureCursorVisible();
}

void TextField::keyPressEvent(QKeyEvent* event) {
    if (isEnter(*event))
        typeEnter();
    else if (!limit_.refuses(*event, staying()))
        QPlainTextEdit::keyPressEvent(event);
}

void TextField::paintEvent(QPaintEvent* event) {
    QPlainTextEdit::paintEvent(event);
    if (!marks_.isBound())
        return;
    QTextBlock block = firstVisibleBlock();
    QPointF place = contentOffset();
    while (block.isValid() && place.y() < viewport()->height()) {
        const QRectF rect = blockBoundingRect(block).translated(place);
        paintMarks(block, rect);
        place = rect.bottomLeft();
        block = block.next();
    }
}

qsizetype TextField::staying() const {
    // The last character of a document is a line end that is none of the text.
    return document()->characterCount() - 1 - textCursor().selectedText().size();
}

/// With Shift, too, Enter is a line end like any other.
void TextField::typeEnter() {
    const QString lineEnd = limit_.fitting(QStringLiteral("\n"), staying());
    if (isReadOnly() || enterSwallowed_ || lineEnd.isEmpty())
        return;
    textCursor().insertText(lineEnd);
    ensureCursorVisible();
}

/// Never goes back: undo may bring a long run again, and lays it out before anyone is asked.
void TextField::wrapFor(QStringView text) {
    if (wordWrapMode() != QTextOption::WrapAnywhere && hasLongRun(text))
        setWordWrapMode(QTextOption::WrapAnywhere);
}

void TextField::textTyped() {
    if (showing_)
        return;
    const QString now = text();
    wrapFor(now);
    Q_EMIT edited(now);
}

void TextField::offerWords(QMenu& menu, const QTextCursor& place) {
    const QString line = place.block().text();
    const auto word = marks_.wordAt(line, place.positionInBlock());
    if (!word)
        return;
    QTextCursor cursor = place;
    cursor.setPosition(place.block().position() + static_cast<int>(word->start));
    cursor.setPosition(cursor.position() + static_cast<int>(word->length), QTextCursor::KeepAnchor);
    const auto replace = [this, cursor](const QString& suggestion) {
        setTextCursor(cursor);
        textCursor().insertText(limit_.fitting(suggestion, staying()));
    };
    marks_.offer(menu, line.sliced(word->start, word->length),
                 isReadOnly() ? std::function<void(QString)>() : replace);
}

/// Only of the lines that are seen: a block may be a megabyte.
void TextField::paintMarks(const QTextBlock& block, const QRectF& place) {
    const QTextLayout& layout = *block.layout();
    const QString text = block.text();
    QPainter painter(viewport());
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        const QRectF rect = line.rect().translated(place.topLeft());
        if (rect.bottom() < 0 || rect.top() > viewport()->height())
            continue;
        const int start = line.textStart();
        const int end = start + line.textLength();
        for (const TextRange& word : marks_.words(text, start, end)) {
            const auto x = [&](qsizetype at) {
                return place.left() + line.cursorToX(std::clamp(static_cast<int>(at), start, end));
            };
            const auto [left, right] = std::minmax({x(word.start), x(word.end())});
            SpellMarks::paintWave(painter, left, right, rect.top() + line.ascent());
        }
    }
}

} // namespace quillford
