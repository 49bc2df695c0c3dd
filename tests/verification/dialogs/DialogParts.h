#pragma once

#include <QTest>
#include <QWidget>

namespace quillford {

/// A control of a dialog, by its name.
template <typename Control = QWidget>
[[nodiscard]] Control& part(const QWidget& dialog, const QString& name) {
    return *dialog.findChild<Control*>(name);
}

/// Clicks a button of a dialog.
inline void press(const QWidget& dialog, const QString& button) {
    QTest::mouseClick(&part(part(dialog, button), QStringLiteral("picbutton")), Qt::LeftButton);
}

/// The first height below a control.
[[nodiscard]] inline int below(const QWidget& control) {
    return control.geometry().bottom() + 1;
}

} // namespace quillford
