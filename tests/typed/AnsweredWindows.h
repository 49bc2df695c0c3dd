#pragma once

#include <QFileDialog>
#include <QMessageBox>
#include <QTimer>

#include <deque>
#include <functional>

namespace quillford {

/// A user at the windows that stand before all others: message windows, boxes and file dialogs.
/// What is expected is answered in its order, by keys. A window that nobody expects fails the test
/// and is closed, and so does one that is still expected at the end.
class AnsweredWindows final : public QObject {
public:
    AnsweredWindows();
    ~AnsweredWindows() override;

    /// The message window, with this title in its strip; its button bears this name.
    void expectMessageWindow(const QString& title, const QString& button, bool tickBox = false);

    /// A box with this title and text.
    void expectBox(const QString& title, const QString& text, QMessageBox::StandardButton button);

    /// A file dialog, into which the path is typed.
    void expectFileDialog(const QString& path);

    [[nodiscard]] bool allCame() const { return steps_.empty(); }

private:
    struct Step {
        QString what;
        std::function<bool(QWidget&)> fits;
        std::function<void(QWidget&)> answer;
    };

    void look();
    void fail(QWidget& shown);

    std::deque<Step> steps_;
    QTimer timer_;
    bool answering_ = false;
};

} // namespace quillford
