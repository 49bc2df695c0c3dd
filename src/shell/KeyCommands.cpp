#include "shell/KeyCommands.h"

#include <QApplication>
#include <QKeyEvent>

namespace quillford {

namespace {

struct KeyCommand {
    Qt::KeyboardModifier modifier;
    Qt::Key key;
    void (KeyCommands::*wanted)();
};

constexpr KeyCommand Commands[] = {
    {Qt::AltModifier, Qt::Key_F, &KeyCommands::fileMenuWanted},
    {Qt::AltModifier, Qt::Key_H, &KeyCommands::helpMenuWanted},
    {Qt::ControlModifier, Qt::Key_S, &KeyCommands::saveWanted},
    {Qt::ControlModifier, Qt::Key_O, &KeyCommands::openWanted},
    {Qt::ControlModifier, Qt::Key_N, &KeyCommands::newWanted},
};

} // namespace

KeyCommands::KeyCommands(QWidget& form) : QObject(&form), form_(form) {
    qApp->installEventFilter(this);
}

bool KeyCommands::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto* widget = qobject_cast<QWidget*>(watched);
    const bool isOurs = widget && widget->window() == &form_ && !QApplication::activeModalWidget();
    return isOurs && take(*static_cast<QKeyEvent*>(event));
}

bool KeyCommands::take(const QKeyEvent& event) {
    for (const KeyCommand& command : Commands) {
        if (event.key() != command.key || event.modifiers() != command.modifier)
            continue;
        Q_EMIT(this->*command.wanted)();
        return true;
    }
    return false;
}

} // namespace quillford
