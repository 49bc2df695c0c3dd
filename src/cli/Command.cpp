#include "cli/Command.h"

#include "persistence/project/ProjectReader.h"

namespace quillford {

namespace {

constexpr int UsageError = 5; // the runtime's number for an invalid argument

const QString HelpOption = QStringLiteral("help");

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

QString Command::help() const {
    const QString indent = QStringLiteral("\n      ");
    return QStringLiteral("  quillford-cli %1 %2").arg(name(), usage()) + indent +
           description().replace(u'\n', indent) + u'\n';
}

ExitStatus Command::run(const QStringList& arguments, CliContext& context) {
    QCommandLineParser parser;
    addOptions(parser);
    parser.addOption(QCommandLineOption(QStringList{QStringLiteral("h"), HelpOption}));
    if (!parser.parse(QStringList(name()) + arguments))
        refuse(name(), parser.errorText());
    if (parser.isSet(HelpOption)) {
        context.print(help().toUtf8());
        return ExitStatus::Done;
    }
    const QString path = parser.positionalArguments().value(0);
    if (path.isEmpty() || parser.positionalArguments().size() > 1)
        refuse(name(), QStringLiteral("expects one project: %1 %2").arg(name(), usage()));
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
