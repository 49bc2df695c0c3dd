#pragma once

#include <QString>

namespace quillford {

/// Everything that the program asks or tells its user in a box. Tests answer from a script and keep
/// every title and text.
class UserPrompts {
public:
    enum class Icon { None, Information, Exclamation, Critical };

    virtual ~UserPrompts() = default;

    /// Shows a plain message box with one button and returns when it is closed. Texts are plain
    /// text, never markup.
    virtual void showMessage(Icon icon, const QString& title, const QString& text) = 0;
};

} // namespace quillford
