#include "cli/ExportCommand.h"

#include "base/Files.h"
#include "cli/CheckedSections.h"
#include "cli/CliPrompts.h"
#include "cli/CliVerification.h"
#include "cli/OutputPlaces.h"
#include "core/rules/FigureSize.h"
#include "draft/commands/PageSetup.h"
#include "draft/compose/HtmlComposer.h"
#include "draft/compose/IndexComposer.h"
#include "draft/compose/WordComposer.h"
#include "persistence/project/WorkingCopies.h"
#include "verification/engine/ErrorReportComposer.h"

#include <QBuffer>

namespace quillford {

namespace {

const QString HtmlOption = QStringLiteral("html");
const QString WordOption = QStringLiteral("word");
const QString PdfOption = QStringLiteral("pdf");
const QString IndexOption = QStringLiteral("index");
const QString ReportOption = QStringLiteral("report");
const QString IncompleteOption = QStringLiteral("incomplete");

constexpr int SectionNotComplete = 5;

/// Every option that names a file to be written.
const QStringList& outputOptions() {
    static const QStringList options{HtmlOption, WordOption, PdfOption, IndexOption, ReportOption};
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

/// The box that the composer shows would be a second line about the same failure.
void exportWord(const Project& project, const QString& path, CliContext& context) {
    constexpr int NoWordProcessor = 429;
    constexpr int IsOpen = 70;
    QBuffer unsaid;
    unsaid.open(QIODevice::WriteOnly);
    CliPrompts quiet(unsaid);
    WordComposer composer(project.fields, context.folders, quiet, context.word);
    if (!context.word.isInstalled())
        throw Error(NoWordProcessor,
                    QStringLiteral("--word needs LibreOffice Writer, which is not installed"));
    if (composer.checkDocFileOpenAndClose(path))
        throw Error(IsOpen, QStringLiteral("the document is open in the word processor"));
    if (!composer.ExportToWord(path))
        raiseFailure(composer.failure(), path);
}

void exportPdf(const Project& project, const QString& path, CliContext& context,
               UserPrompts& prompts) {
    HtmlComposer composer(project.fields, context.folders, prompts);
    PrintJob job;
    job.html = QStringLiteral(" "); // a text asks for a preview, which is what is printed
    if (!composer.ExportToHTML(QString(), job.html))
        raiseFailure(composer.failure(), path);
    job.title = QStringLiteral("Project - ") + project.fields.txtFileNo.trimmedText();
    job.footer = PageSetup::Footer.toString();
    about(path, [&] { replaceFile(path, context.printPdf(job)); });
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

void ExportCommand::checkOptions(const QCommandLineParser& parser,
                                 const QString& projectPath) const {
    OutputPlaces places;
    places.keep(projectPath, QStringLiteral("the project"));
    for (const QString& option : outputOptions()) {
        if (!parser.isSet(option))
            continue;
        const QString path = parser.value(option);
        if (parser.values(option).size() > 1)
            refuse(name(), QStringLiteral("--%1 is given more than once").arg(option));
        if (path.isEmpty())
            refuse(name(), QStringLiteral("--%1 expects the name of a file").arg(option));
        places.take(path, QStringLiteral("--") + option);
    }
    if (!places.isTaken())
        refuse(name(), QStringLiteral("expects an output: %1 %2").arg(name(), usage()));
}

/// The pictures of a project file become working copies, as when the wizard opens it; those that a
/// JSON project names are measured where they lie.
ReadReport ExportCommand::read(const QString& path, Project& project, CliContext& context) {
    WorkingCopies copies(project.fields, context.folders, context.pictures);
    ReadReport report = readProject(path, project, copies);
    if (report.version.isEmpty())
        measureFigures(project.fields, context.pictures);
    return report;
}

ExitStatus ExportCommand::executeOn(const QCommandLineParser& parser, Project& project,
                                    const ReadReport&, CliContext& context) {
    CliPrompts prompts(context.errors);
    OutputPlaces places;
    places.keepPictures(project.fields);
    for (const QString& option : outputOptions())
        if (parser.isSet(option))
            places.take(parser.value(option), QStringLiteral("--") + option);
    if (!parser.isSet(IncompleteOption))
        requireComplete(project, prompts);
    if (parser.isSet(HtmlOption))
        exportHtml(project, parser.value(HtmlOption), context, prompts);
    if (parser.isSet(WordOption))
        about(parser.value(WordOption),
              [&] { exportWord(project, parser.value(WordOption), context); });
    if (parser.isSet(PdfOption))
        exportPdf(project, parser.value(PdfOption), context, prompts);
    if (parser.isSet(IndexOption))
        exportIndex(project, parser.value(IndexOption), context, prompts);
    if (parser.isSet(ReportOption))
        exportReport(project, parser.value(ReportOption), context, prompts);
    return ExitStatus::Done;
}

} // namespace quillford
