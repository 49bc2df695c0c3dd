#pragma once

#include <QWidget>

#include <functional>

namespace quillford {

/// A control on screen as its field sees it. The functions live as long as the widget.
struct FieldControl {
    QWidget* widget = nullptr;
    /// Shows a text; the control tells nobody of it.
    std::function<void(const QString&)> show;
    /// Gives the control the tint of an empty required field, or its white back.
    std::function<void(bool)> tint;
};

} // namespace quillford
