#pragma once

#include "controls/WindowDrag.h"

#include <QCursor>
#include <QObject>

namespace quillford {

/// What a system frame would do for the main form: its outline, its move by the title strip, its
/// system menu, and its minimise and close controls.
class WindowChrome final : public QObject {
    Q_OBJECT

public:
    /// The form owns the chrome, and has `lblTitleBar`, `lblMin` and `lblClose`.
    explicit WindowChrome(QWidget& form);

    /// Prepares moving the form by the mouse from the keyboard.
    void StartMove() { drag_->StartMove(); }

private:
    void showSystemMenu(const QPoint& place);

    QWidget& form_;
    WindowDrag* drag_; // owned by the strip
};

} // namespace quillford
