#pragma once

#include "base/Error.h"
#include "platform/UserPrompts.h"

namespace quillford {

/// Boxes where nobody sits: the text of each is raised as an `Error`, and so is the asking of a
/// question.
class UnattendedPrompts final : public UserPrompts {
public:
    void showMessage(Icon, const QString& title, const QString& text) override {
        throw Error(0, text, title);
    }

    bool askYesNo(Icon, const QString& title, const QString& text) override {
        throw Error(0, text, title);
    }

    Answer askYesNoCancel(Icon, const QString& title, const QString& text) override {
        throw Error(0, text, title);
    }

    QString chooseFileToOpen(const FileQuestion&) override { raise(); }

    QString chooseFileToSave(const FileQuestion&) override { raise(); }

    bool showMsgWindow(const NotAgainChanged&) override { raise(); }

    void showTab4MsgWindow(const NotAgainChanged&) override { raise(); }

    ExportChoice showExportToFileMsgWindow(bool) override { raise(); }

private:
    [[noreturn]] static void raise() {
        throw Error(0, QStringLiteral("a question with nobody to answer it"));
    }
};

} // namespace quillford
