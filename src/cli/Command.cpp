#include "cli/Command.h"

namespace quillford {

namespace {

constexpr int UsageError = 5; // the runtime's number for an invalid argument

const QString HelpOption = QStringLiteral("help");

} // namespace

QString Command::help() const {
    const QString indent = QStringLiteral("\n      ");
    return QStringLiteral("  quillford-cli %1 %2").arg(name(), usage()).replace(u'\n', indent) +
           indent + description().replace(u'\n', indent) + u'\n';
}

ExitStatus Command::run(const QStringList& arguments, CliContext& context) {
    QCommandLineParser parser;
    addOptions(parser);
    parser.addOption(QCommandLineOption(QStringList{QStringLiteral("h"), HelpOption}));
    if (!parser.parse(QStringList(name()) + arguments))
        refuse(name(), parser.errorText());
    if (!parser.isSet(HelpOption))
        return execute(parser, context);
    context.print(help().toUtf8());
    return ExitStatus::Done;
}

void Command::refuse(const QString& name, const QString& reason) {
    throw Error(UsageError, reason, name);
}

} // namespace quillford
