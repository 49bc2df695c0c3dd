#include "cli/ExportCommand.h"

#include "cli/CheckedSections.h"
#include "cli/CliPrompts.h"
#include "cli/CliVerification.h"
#include "core/rules/FigureSize.h"
#include "draft/compose/HtmlComposer.h"
#include "draft/compose/IndexComposer.h"
#include "verification/engine/ErrorReportComposer.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

namespace quillford {

namespace {

const QString HtmlOption = QStringLiteral("html");
const QString IndexOption = QStringLiteral("index");
const QString ReportOption = QStringLiteral("report");
const QString IncompleteOption = QStringLiteral("incomplete");

constexpr int SectionNotComplete = 5;

/// Every option that names a file to be written.
const QStringList& outputOptions() {
    static const QStringList options{HtmlOption, IndexOption, ReportOption};
    return options;
}

void requireComplete(const Project& project, UserPrompts& prompts) {
    const CheckedSections sections(project, prompts);
    const QList<int> incomplete = sections.rules().incompleteSections();
    if (!incomplete.isEmpty())
        throw Error(SectionNotComplete,
                    QStringLiteral("data is missing from %1; --incomplete exports all the same")
                        .arg(namedSections(incomplete)));
}

/// Where a file of this name lies, or will lie once it is written: links are followed, those that
/// lead to no file yet as well.
QString placeOf(QString path) {
    constexpr int MostLinks = 40; // the kernel follows no more
    for (int i = 0; i < MostLinks && QFileInfo(path).isSymLink(); ++i)
        path = QFileInfo(path).symLinkTarget();
    const QFileInfo file(path);
    const QString folder = file.dir().canonicalPath();
    return folder.isEmpty() ? file.absoluteFilePath() : QDir(folder).filePath(file.fileName());
}

[[noreturn]] void raiseFailure(const std::optional<Error>& failure, const QString& path) {
    if (!failure)
        throw Error(SectionNotComplete, QStringLiteral("the template cannot be opened"), path);
    throw *failure;
}

void exportHtml(const Project& project, const QString& path, CliContext& context,
                UserPrompts& prompts) {
    HtmlComposer composer(project.fields, context.folders, prompts);
    QString written; // an empty text asks for a file
    if (!composer.ExportToHTML(path, written))
        raiseFailure(composer.failure(), path);
}

void exportIndex(const Project& project, const QString& path, CliContext& context,
                 UserPrompts& prompts) {
    IndexComposer composer(project.fields, context.folders, prompts);
    QString html;
    if (!composer.ExportToIndex(html))
        raiseFailure(composer.failure(), path);
    HTMLTemplate().SaveAs(path, html);
}

void exportReport(const Project& project, const QString& path, CliContext& context,
                  UserPrompts& prompts) {
    const VerificationState verification = verifyProject(project.fields);
    ErrorReportComposer composer(verification.lists, context.folders, prompts);
    QString html;
    if (!composer.ExportToErrorReport(html))
        raiseFailure(composer.failure(), path);
    HTMLTemplate().SaveAs(path, html);
}

} // namespace

void ExportCommand::addOptions(QCommandLineParser& parser) const {
    for (const QString& option : outputOptions())
        parser.addOption({option, QString(), QStringLiteral("FILE")});
    parser.addOption(QCommandLineOption(IncompleteOption));
}

/// An output replaces a file or makes one: it takes no folder's or device's place, nor that of
/// another output or of the project that it is made from.
void ExportCommand::checkOptions(const QCommandLineParser& parser,
                                 const QString& projectPath) const {
    QHash<QString, QString> taken{{placeOf(projectPath), QStringLiteral("the project")}};
    for (const QString& option : outputOptions()) {
        if (!parser.isSet(option))
            continue;
        const QString path = parser.value(option);
        if (parser.values(option).size() > 1)
            refuse(name(), QStringLiteral("--%1 is given more than once").arg(option));
        if (path.isEmpty())
            refuse(name(), QStringLiteral("--%1 expects the name of a file").arg(option));
        if (QFileInfo::exists(path) && !QFileInfo(path).isFile())
            refuse(path, QStringLiteral("--%1 can only write a file").arg(option));
        if (taken.contains(placeOf(path)))
            refuse(path, QStringLiteral("--%1 would replace %2").arg(option, taken[placeOf(path)]));
        taken.insert(placeOf(path), QStringLiteral("the output of --%1").arg(option));
    }
    if (taken.size() == 1)
        refuse(name(), QStringLiteral("expects an output: %1 %2").arg(name(), usage()));
}

ExitStatus ExportCommand::execute(const QCommandLineParser& parser, Project& project,
                                  CliContext& context) {
    CliPrompts prompts(context.errors);
    if (!parser.isSet(IncompleteOption))
        requireComplete(project, prompts);
    measureFigures(project.fields, context.pictures);
    if (parser.isSet(HtmlOption))
        exportHtml(project, parser.value(HtmlOption), context, prompts);
    if (parser.isSet(IndexOption))
        exportIndex(project, parser.value(IndexOption), context, prompts);
    if (parser.isSet(ReportOption))
        exportReport(project, parser.value(ReportOption), context, prompts);
    return ExitStatus::Done;
}

} // namespace quillford
