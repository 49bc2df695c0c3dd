#include "draft/commands/PrintCommands.h"

#include "base/Error.h"
#include "core/commands/Pause.h"
#include "core/rules/SectionRules.h"
#include "draft/compose/IndexComposer.h"

#include <algorithm>
#include <utility>

namespace quillford {

namespace {

using Icon = UserPrompts::Icon;

/// A printer that prints on no paper.
constexpr QStringView ImageWriter = u"Microsoft Office Document Image Writer";

} // namespace

void PrintCommands::imgPrintFile() {
    const CommandScope atWork(parts_.project.state);
    parts_.pageSetup.save();
    parts_.pageSetup.setForDraft();
    print(job(parts_.preview.previewHtml()));
}

void PrintCommands::mnuFilePrint() {
    const CommandScope atWork(parts_.project.state);
    if (parts_.project.state.currentTab != SectionRules::FinalDraftTab) {
        if (!parts_.preview.buildFinalDraft())
            return;
        parts_.looks.enableDraftCommands(true);
        Pause(2, parts_.clock, parts_.system);
    }
    imgPrintFile();
}

void PrintCommands::imgPrint() {
    const CommandScope atWork(parts_.project.state);
    if (!choosePrinter())
        return;
    QString html;
    if (!IndexComposer(parts_.project.fields, parts_.folders, parts_.prompts).ExportToIndex(html))
        return;
    parts_.pageSetup.save();
    parts_.pageSetup.setForDraft();
    print(job(html));
}

void PrintCommands::imgHelpPrint(PrintJob page) {
    const CommandScope atWork(parts_.project.state);
    if (!choosePrinter())
        return;
    parts_.pageSetup.save();
    parts_.pageSetup.setEmpty();
    print(std::move(page));
}

void PrintCommands::imgReportPrint(const QString& html) {
    const CommandScope atWork(parts_.project.state);
    parts_.pageSetup.setForDraft();
    print(job(html));
}

/// Takes the first printer whose pages stand upright. Tells the user where there is no printer.
bool PrintCommands::choosePrinter() {
    const QList<PagePrinter::Printer> printers = parts_.printer.printers();
    const auto upright =
        std::find_if(printers.begin(), printers.end(),
                     [](const PagePrinter::Printer& printer) { return printer.isPortrait; });
    if (upright != printers.end())
        parts_.printer.choosePrinter(upright->name);
    const bool hasImageWriter =
        std::any_of(printers.begin(), printers.end(), [](const PagePrinter::Printer& printer) {
            return printer.name == ImageWriter;
        });
    if (printers.size() > (hasImageWriter ? 1 : 0))
        return true;
    parts_.prompts.showMessage(
        Icon::None, QStringLiteral("Information"),
        QStringLiteral("Not found printer,Please install printer and have a try."));
    return false;
}

PrintJob PrintCommands::job(const QString& html) const {
    PrintJob job;
    job.html = html;
    job.title = QStringLiteral("Project - ") + parts_.project.fields.txtFileNo.trimmedText();
    return job;
}

void PrintCommands::print(PrintJob job) {
    parts_.pageSetup.applyTo(job);
    try {
        parts_.printer.print(job, [this] { parts_.pageSetup.restore(); });
    } catch (const Error& error) {
        parts_.prompts.showMessage(Icon::Critical, QStringLiteral("Error"), error.description());
    }
}

} // namespace quillford
