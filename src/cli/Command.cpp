#include "cli/Command.h"

#include "persistence/project/ProjectReader.h"

namespace quillford {

namespace {

constexpr int UsageError = 5; // the runtime's number for an invalid argument

/// Runs a step; a failure that names nothing is about `thing`.
template <typename Step>
auto about(const QString& thing, Step step) {
    try {
        return step();
    } catch (const Error& error) {
        if (!error.source().isEmpty())
            throw;
        throw Error(error.number(), error.description(), thing, error.offset());
    }
}

} // namespace

ExitStatus Command::run(const QStringList& arguments, CliContext& context) {
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(QStringList(name()) + arguments))
        refuse(name(), parser.errorText());
    if (parser.positionalArguments().size() != 1)
        refuse(name(), QStringLiteral("expects one project: %1 %2").arg(name(), usage()));
    const QString path = parser.positionalArguments().constFirst();
    checkOptions(parser, path);
    return about(path, [&] {
        Project project;
        readProject(path, project);
        return execute(parser, project, context);
    });
}

void Command::refuse(const QString& name, const QString& reason) {
    throw Error(UsageError, reason, name);
}

} // namespace quillford
