#pragma once

#include <QKeyEvent>
#include <QWidget>

namespace quillford {

/// Has assistive programs see the widget as a button. Its name is its accessible name, or its text;
/// pressing it emits the widget's signal `clicked()`.
void giveButtonRole(QWidget& widget);

/// True for the keys that press a button which has the focus: space, Enter and Return. One that is
/// held down presses once: its repetitions would press whatever takes the button's place.
[[nodiscard]] bool isClickKey(const QKeyEvent& event);

} // namespace quillford
