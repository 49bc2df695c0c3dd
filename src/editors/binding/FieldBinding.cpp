#include "editors/binding/FieldBinding.h"

#include <QFocusEvent>

namespace quillford {

namespace {

QString asShown(QString text) {
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

QString asKept(QString text) {
    return asShown(std::move(text)).replace(u'\n', QStringLiteral("\r\n"));
}

} // namespace

FieldBinding::FieldBinding(ProjectFields& fields, FieldPlace place, FieldControl control)
    : QObject(control.widget), fields_(fields), place_(place), control_(std::move(control)) {
    control_.widget->installEventFilter(this);
    showField();
}

void FieldBinding::showField() {
    if (!editing_)
        control_.show(asShown(field().text()));
}

void FieldBinding::edit(const QString& shown) {
    const QString text = asKept(shown);
    editing_ = true;
    field().setText(text);
    editing_ = false;
    // What follows a change may write the field itself: a name takes its partner's trimmed text.
    if (field().text() != text)
        showField();
}

void FieldBinding::choose() {
    Q_EMIT chosen();
}

bool FieldBinding::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        Q_EMIT focusReached(reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason);
    } else if (event->type() == QEvent::FocusOut) {
        Q_EMIT focusLeft();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace quillford
