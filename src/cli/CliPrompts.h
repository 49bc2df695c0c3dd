#pragma once

#include "platform/UserPrompts.h"

#include <QIODevice>

namespace quillford {

/// Message boxes on the command line: one line each on standard error.
class CliPrompts final : public UserPrompts {
public:
    /// `errors` is not owned and outlives the prompts.
    explicit CliPrompts(QIODevice& errors) : errors_(errors) {}

    void showMessage(Icon icon, const QString& title, const QString& text) override;

private:
    QIODevice& errors_;
};

/// Writes one line "quillford-cli: name: text"; line ends within the texts become blanks.
void writeErrorLine(QIODevice& errors, const QString& name, const QString& text);

} // namespace quillford
