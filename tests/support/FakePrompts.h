#pragma once

#include "platform/UserPrompts.h"
#include "support/PrintQt.h"

#include <deque>
#include <gtest/gtest.h>
#include <ostream>
#include <utility>
#include <vector>

namespace quillford {

/// A user who reads every box and closes it. All boxes are kept in the order in which they were
/// shown, and beside them all questions for a file; a kind of question takes its answers from a
/// script beside them and fails the test when the script has run out. Of the message window the
/// arrangement is kept in place of its texts.
class FakePrompts final : public UserPrompts {
public:
    struct Box {
        Icon icon;
        QString title;
        QString text;

        friend bool operator==(const Box&, const Box&) = default;

        friend void PrintTo(const Box& box, std::ostream* out) {
            *out << "icon " << static_cast<int>(box.icon) << ", ";
            PrintTo(box.title, out);
            *out << ": ";
            PrintTo(box.text, out);
        }
    };

    /// What the user does in a message window: changes of its box, then the button.
    struct MessageWindow {
        bool yes = true;
        std::vector<bool> ticks;
    };

    std::vector<Box> boxes;
    std::vector<FileQuestion> fileQuestions;
    std::deque<bool> yesNoAnswers;
    std::deque<Answer> yesNoCancelAnswers;
    std::deque<QString> filesToOpen;
    std::deque<QString> filesToSave;
    std::deque<MessageWindow> msgWindows;
    std::deque<MessageWindow> tab4MsgWindows;
    std::deque<ExportChoice> exportChoices;

    void showMessage(Icon icon, const QString& title, const QString& text) override {
        boxes.push_back({icon, title, text});
    }

    bool askYesNo(Icon icon, const QString& title, const QString& text) override {
        boxes.push_back({icon, title, text});
        return next(yesNoAnswers);
    }

    Answer askYesNoCancel(Icon icon, const QString& title, const QString& text) override {
        boxes.push_back({icon, title, text});
        return next(yesNoCancelAnswers);
    }

    QString chooseFileToOpen(const FileQuestion& question) override {
        fileQuestions.push_back(question);
        return next(filesToOpen);
    }

    QString chooseFileToSave(const FileQuestion& question) override {
        fileQuestions.push_back(question);
        return next(filesToSave);
    }

    bool showMsgWindow(const NotAgainChanged& changed) override {
        boxes.push_back({Icon::None, QStringLiteral("showMsgWindow"), {}});
        return act(next(msgWindows), changed);
    }

    void showTab4MsgWindow(const NotAgainChanged& changed) override {
        boxes.push_back({Icon::None, QStringLiteral("showTab4MsgWindow"), {}});
        act(next(tab4MsgWindows), changed);
    }

    ExportChoice showExportToFileMsgWindow(bool) override {
        boxes.push_back({Icon::None, QStringLiteral("showExportToFileMsgWindow"), {}});
        return next(exportChoices);
    }

private:
    template <typename Answer>
    static Answer next(std::deque<Answer>& script) {
        if (script.empty()) {
            ADD_FAILURE() << "a question without an answer in the script";
            return {};
        }
        Answer answer = std::move(script.front());
        script.pop_front();
        return answer;
    }

    static bool act(const MessageWindow& window, const NotAgainChanged& changed) {
        for (const bool ticked : window.ticks)
            changed(ticked);
        return window.yes;
    }
};

} // namespace quillford
