#pragma once

#include "platform/UserPrompts.h"

#include <QIODevice>

namespace quillford {

/// Message boxes on the command line: one line each on standard error. Nobody is there to answer a
/// question, so that each is told as a line as well and answered No.
class CliPrompts final : public UserPrompts {
public:
    /// `errors` is not owned and outlives the prompts.
    explicit CliPrompts(QIODevice& errors) : errors_(errors) {}

    void showMessage(Icon icon, const QString& title, const QString& text) override;
    [[nodiscard]] bool askYesNo(Icon icon, const QString& title, const QString& text) override;

    // The command line is told every name and every answer beforehand.
    [[nodiscard]] Answer askYesNoCancel(Icon icon, const QString& title,
                                        const QString& text) override {
        showMessage(icon, title, text);
        return Answer::Cancel;
    }

    [[nodiscard]] QString chooseFileToOpen(const FileQuestion&) override { return {}; }

    [[nodiscard]] QString chooseFileToSave(const FileQuestion&) override { return {}; }

    // The message window belongs to the wizard's tabs and has no line of its own.
    [[nodiscard]] bool showMsgWindow(const NotAgainChanged&) override { return false; }

    void showTab4MsgWindow(const NotAgainChanged&) override {}

    [[nodiscard]] ExportChoice showExportToFileMsgWindow(bool) override {
        return ExportChoice::Cancel;
    }

private:
    QIODevice& errors_;
};

/// Writes one line "quillford-cli: name: text"; line ends and other control
/// characters within the texts become blanks.
void writeErrorLine(QIODevice& errors, const QString& name, const QString& text);

} // namespace quillford
