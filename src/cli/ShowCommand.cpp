#include "cli/ShowCommand.h"

#include "persistence/project/JsonWriter.h"

namespace quillford {

void ShowCommand::addOptions(QCommandLineParser&) const {}

void ShowCommand::checkOptions(const QCommandLineParser&, const QString&) const {}

ExitStatus ShowCommand::execute(const QCommandLineParser&, Project& project, CliContext& context) {
    context.print(writeProjectJson(project));
    return ExitStatus::Done;
}

} // namespace quillford
