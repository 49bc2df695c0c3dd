#include "cli/CliProgram.h"

#include "base/Error.h"
#include "cli/CheckCommand.h"
#include "cli/CliPrompts.h"
#include "cli/ExportCommand.h"
#include "cli/NewCommand.h"
#include "cli/ShowCommand.h"

#include <exception>

namespace quillford {

namespace {

const QString SeeHelp = QStringLiteral("quillford-cli --help lists the commands");

} // namespace

CliProgram::CliProgram(CliContext& context) : context_(context) {
    commands_.push_back(std::make_unique<ShowCommand>());
    commands_.push_back(std::make_unique<NewCommand>());
    commands_.push_back(std::make_unique<ExportCommand>());
    commands_.push_back(std::make_unique<CheckCommand>());
}

int CliProgram::run(const QStringList& arguments) {
    const QString first = arguments.value(0);
    const QString name = first.isEmpty() ? QStringLiteral("command line") : first;
    try {
        return static_cast<int>(dispatch(arguments));
    } catch (const Error& error) {
        writeErrorLine(context_.errors, error.source().isEmpty() ? name : error.source(),
                       error.description());
    } catch (const std::exception& error) {
        writeErrorLine(context_.errors, name, QString::fromUtf8(error.what()));
    }
    return static_cast<int>(ExitStatus::Failed);
}

ExitStatus CliProgram::dispatch(const QStringList& arguments) {
    const QString first = arguments.value(0);
    if (first == u"--help" || first == u"-h") {
        context_.print(helpText().toUtf8());
        return ExitStatus::Done;
    }
    if (first == u"--version") {
        context_.print("quillford-cli 3.1\n");
        return ExitStatus::Done;
    }
    for (const auto& command : commands_)
        if (command->name() == first)
            return command->run(arguments.sliced(1), context_);
    if (first.isEmpty())
        throw Error(0, QStringLiteral("expects a command; %1").arg(SeeHelp));
    throw Error(0, QStringLiteral("is no command; %1").arg(SeeHelp));
}

QString CliProgram::helpText() const {
    QString help = QStringLiteral("quillford-cli composes provisional patent applications.\n\n"
                                  "A PROJECT is a project file (.ivd) or a JSON file with the "
                                  "project's fields.\n\n");
    for (const auto& command : commands_)
        help += command->help();
    return help + QStringLiteral("  quillford-cli --help | COMMAND --help | --version\n\n"
                                 "Exit status: 0 done; 1 check found something; 2 a usage error or "
                                 "a failure,\ntold in one line on standard error.\n");
}

} // namespace quillford
