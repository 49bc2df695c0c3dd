#include "controls/TypingLimit.h"

#include <QInputMethodEvent>
#include <QKeyEvent>

#include <algorithm>

namespace quillford {

namespace {

/// What the toolkit's fields take for typing: AltGr comes as Control and Alt together.
bool types(const QKeyEvent& key) {
    const bool isCommand =
        key.modifiers().testFlag(Qt::ControlModifier) && !key.modifiers().testFlag(Qt::AltModifier);
    return !isCommand && !key.text().isEmpty() &&
           key.text().front().category() != QChar::Other_Control;
}

} // namespace

QString TypingLimit::fitting(const QString& insertion, qsizetype staying) const {
    if (limit_ == 0)
        return insertion;
    const qsizetype room = std::max<qsizetype>(limit_ - staying, 0);
    if (insertion.size() <= room)
        return insertion;
    const bool isInsideCharacter =
        room > 0 && insertion.at(room).isLowSurrogate() && insertion.at(room - 1).isHighSurrogate();
    return insertion.left(isInsideCharacter ? room - 1 : room);
}

bool TypingLimit::refuses(const QKeyEvent& key, qsizetype staying) const {
    return types(key) && fitting(key.text(), staying) != key.text();
}

void TypingLimit::cut(QInputMethodEvent& event, qsizetype staying) const {
    event.setCommitString(fitting(event.commitString(), staying - event.replacementLength()),
                          event.replacementStart(), event.replacementLength());
}

} // namespace quillford
