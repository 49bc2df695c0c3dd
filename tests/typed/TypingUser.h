#pragma once

#include <QWidget>

#include <stdexcept>

namespace quillford {

/// A user before the main form with a mouse and a keyboard. A click falls on what lies uppermost at
/// its place, and a key goes to what has the focus, or to the window where nothing has.
class TypingUser {
public:
    /// The form is shown, and outlives the user.
    explicit TypingUser(QWidget& form);

    [[nodiscard]] QWidget& form() const { return form_; }

    /// The control with this name, "txtElementName(2)".
    template <typename Control = QWidget>
    [[nodiscard]] Control& control(const QString& name) const {
        if (auto* found = form_.findChild<Control*>(name))
            return *found;
        throw std::runtime_error("there is no " + name.toStdString());
    }

    /// How many controls `NAME(0)`, `NAME(1)` and so on are shown, hidden pages not counted.
    [[nodiscard]] int shownMembers(const QString& name) const;

    /// Clicks on the middle of a control, which has to be in view.
    void click(const QString& name);

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// Types a text; a line end is the Enter key.
    void type(const QString& text);

    /// Presses the Tab key until the control has the focus, and turns the wheel where the section
    /// has not brought it into view.
    void tabTo(const QString& name);

    /// Puts a text in the place of what the control shows.
    void fill(const QString& name, const QString& text);

    /// Opens a list that has the focus, and chooses the row with this text.
    void choose(const QString& name, const QString& row);

    /// What the control shows, with the project's line ends; of a check box "0" or "1".
    [[nodiscard]] QString shown(const QString& name) const { return textOf(control(name)); }

    /// The same of a control at hand.
    [[nodiscard]] static QString textOf(const QWidget& widget);

    /// Whether the middle of a control can be clicked: nothing lies over it, and no edge of a view
    /// cuts it.
    [[nodiscard]] bool isInView(const QWidget& widget) const;

    /// A dialog has closed; without a window manager nobody gives the form the focus back.
    void comeBack();

private:
    void wheelTo(const QWidget& widget);

    QWidget& form_;
};

} // namespace quillford
