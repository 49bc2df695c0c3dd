#include "controls/FormCombo.h"

#include "controls/Theme.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>

namespace quillford {

FormCombo::FormCombo(QWidget* parent) : QComboBox(parent) {
    setInsertPolicy(NoInsert);
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(16);
    connect(this, &QComboBox::activated, this, &FormCombo::rowActivated);
}

void FormCombo::showText(const QString& text) {
    const QSignalBlocker quiet(this);
    setCurrentIndex(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    if (isEditable())
        setEditText(text);
    shown_ = currentText();
}

void FormCombo::setTint(bool on) {
    tinted_ = on;
    theme::setTint(*this, on);
}

void FormCombo::setTyping(bool on) {
    setEditable(on);
    QLineEdit* field = lineEdit();
    if (!field)
        return;
    setCompleter(nullptr);
    // The toolkit's own answers to Enter and to a lost focus look for a row that differs in case
    // only, and put it in the place of what was typed.
    disconnect(field, &QLineEdit::returnPressed, this, nullptr);
    disconnect(field, &QLineEdit::editingFinished, this, nullptr);
    connect(field, &QLineEdit::textEdited, this, [this](const QString& text) {
        shown_ = text;
        Q_EMIT edited(text);
    });
}

void FormCombo::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void FormCombo::rowActivated() {
    if (currentText() != shown_) {
        shown_ = currentText();
        Q_EMIT edited(shown_);
    }
    Q_EMIT chosen();
}

} // namespace quillford
