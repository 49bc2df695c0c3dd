#include "cli/ShowCommand.h"

#include "persistence/project/JsonWriter.h"

namespace quillford {

void ShowCommand::addOptions(QCommandLineParser&) const {}

void ShowCommand::checkOptions(const QCommandLineParser&, const QString&) const {}

ReadReport ShowCommand::read(const QString& path, Project& project, CliContext&) {
    return readProject(path, project, pictures_);
}

ExitStatus ShowCommand::executeOn(const QCommandLineParser&, Project& project,
                                  const ReadReport& report, CliContext& context) {
    const bool isProjectFile = !report.version.isEmpty();
    context.print(isProjectFile ? writeProjectJson(project, report.version, pictures_)
                                : writeProjectJson(project));
    return ExitStatus::Done;
}

} // namespace quillford
