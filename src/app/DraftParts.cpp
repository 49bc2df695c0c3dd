#include "app/DraftParts.h"

#include "verification/engine/ErrorReportComposer.h"

namespace quillford {

DraftParts::DraftParts(Project& project, mdlSystem& system, Settings& settings,
                       UserPrompts& prompts, const Wizard& wizard, ProjectFiles& files,
                       const Ports& ports)
    : prompts_(prompts),
      folders_(ports.folders),
      pageSetup_(settings),
      entry_(project.fields, project.state, wizard.rules, wizard.screen.tabs),
      page_(wizard.panel, entry_, ports.pictures),
      preview_(project, wizard.rules, wizard.screen.project, page_, ports.folders, prompts,
               ports.clock, [&files] { files.commands().mnuFileSave_Click(); }),
      printing_({project, system, preview_, wizard.screen.tabs, pageSetup_, ports.printer,
                 ports.folders, prompts, ports.clock}),
      check_({wizard.form, project.fields, verification_, system, ports.clock, ports.measure,
              ports.measuredFont},
             [this](const MissingLists& lists) { printReport(lists); }),
      commands_({project, system, verification_.exportFormat, check_, wizard.navigator,
                 wizard.screen, wizard.saveState, files.saveDialog(), ports.word, ports.opener,
                 ports.folders, prompts, ports.clock}) {
    page_.setBuild([this] { return preview_.buildFinalDraft(); });
}

void DraftParts::printReport(const MissingLists& lists) {
    QString page;
    if (ErrorReportComposer(lists, folders_, prompts_).ExportToErrorReport(page))
        printing_.imgReportPrint(page);
}

} // namespace quillford
