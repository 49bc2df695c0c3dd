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

#include <limits>
#include <memory>

namespace quillford {

LineField::LineField(QWidget* parent) : QLineEdit(parent) {
    setMaxLength(std::numeric_limits<int>::max());
    connect(this, &QLineEdit::textEdited, this, &LineField::edited);
}

void LineField::showText(const QString& text) {
    if (text == this->text())
        return;
    setText(text);
    setCursorPosition(0);
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
    menu->exec(event->globalPos());
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

} // namespace quillford
