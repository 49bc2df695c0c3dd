#pragma once

#include "cli/Command.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace quillford {

/// The program quillford-cli: finds the command that the first argument names and runs it.
class CliProgram {
public:
    /// The context outlives the program.
    explicit CliProgram(CliContext& context);

    /// Runs the command line, without the program's own name in it, and gives the exit status. A
    /// failure is one line on standard error, "quillford-cli: name: what is wrong".
    int run(const QStringList& arguments);

private:
    ExitStatus dispatch(const QStringList& arguments);
    [[nodiscard]] QString helpText() const;

    CliContext& context_;
    std::vector<std::unique_ptr<Command>> commands_;
};

} // namespace quillford
