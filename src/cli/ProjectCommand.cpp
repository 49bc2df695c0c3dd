#include "cli/ProjectCommand.h"

#include "cli/CliPrompts.h"

namespace quillford {

ReadReport ProjectCommand::read(const QString& path, Project& project, CliContext&) {
    return readProject(path, project);
}

ExitStatus ProjectCommand::execute(const QCommandLineParser& parser, CliContext& context) {
    const QString path = parser.positionalArguments().value(0);
    if (path.isEmpty() || parser.positionalArguments().size() > 1)
        refuse(name(), QStringLiteral("expects one project: %1 %2").arg(name(), usage()));
    checkOptions(parser, path);
    return about(path, [&] {
        Project project;
        const ReadReport report = read(path, project, context);
        for (const QString& stream : report.missing)
            writeErrorLine(context.errors, path,
                           QStringLiteral("warning: \"%1\" is missing").arg(stream));
        return executeOn(parser, project, report, context);
    });
}

} // namespace quillford
