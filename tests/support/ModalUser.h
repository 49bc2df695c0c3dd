#pragma once

#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <optional>

namespace quillford {

/// A user at the windows that stand before all others. What is told is done in this order, each
/// once a window that fits is up; a step may also be told for a window that an earlier step has
/// left open, and a step that opens a further window leaves that to the next one.
///
/// A window that nobody expects fails the test and is closed, and so does one that stays open when
/// everything told for it is done. A step whose window never came fails the test at the end.
class ModalUser final : public QObject {
public:
    using Answer = std::function<void(QDialog&)>;

    ModalUser();
    ~ModalUser() override;

    /// Has `act` called with the window that is up, a reference to `Window`.
    template <typename Window, typename Act>
    ModalUser& meets(Act act) {
        return expects(
            QString::fromLatin1(Window::staticMetaObject.className()),
            [](QWidget& shown) { return qobject_cast<Window*>(&shown) != nullptr; },
            [act](QWidget& shown) { act(*qobject_cast<Window*>(&shown)); });
    }

    /// A dialog with this title.
    ModalUser& isAsked(const QString& title, const Answer& answer);

    /// A box with this title, answered by keys; where a text is told, it has to be that of the box.
    ModalUser& isAsked(const QString& title, QMessageBox::StandardButton button,
                       const std::optional<QString>& text = {});

    /// A dialog with this title, as often as it comes, between two steps as well; it need not come.
    ModalUser& passes(const QString& title, const Answer& answer);

    /// A file dialog, into which the path is typed; with an empty one it is left by Escape.
    ModalUser& isAskedForFile(const QString& path);

    /// A print dialog without a printer, which prints into the file whose path is typed; with an
    /// empty one it is left by Escape.
    ModalUser& isAskedToPrint(const QString& path);

    [[nodiscard]] bool allCame() const { return steps_.empty(); }

    /// Moves to a control of a window by the Tab key, and presses the space bar there.
    static void pressByKeys(QWidget& window, QWidget* control);

private:
    struct Step {
        QString what;
        std::function<bool(QWidget&)> fits;
        std::function<void(QWidget&)> act;
    };

    [[nodiscard]] static Step dialogStep(const QString& title, const Answer& answer);

    ModalUser& expects(const QString& what, const std::function<bool(QWidget&)>& fits,
                       const std::function<void(QWidget&)>& act);
    [[nodiscard]] std::optional<Step> takeStepFor(QWidget& shown);
    void lookAgain();
    void look();
    void meet(QWidget& shown);
    void refuse(QWidget& shown) const;

    std::deque<Step> steps_;
    std::deque<Step> passed_;
    QPointer<QWidget> met_; ///< the window that a step was done for, or that was refused
    QDeadlineTimer patience_;
};

} // namespace quillford
