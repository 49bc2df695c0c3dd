#include "draft/commands/DraftPreview.h"

#include "core/fields/SaveFlag.h"
#include "draft/compose/HtmlComposer.h"

#include <utility>

namespace quillford {

DraftPreview::DraftPreview(Project& project, const SectionRules& rules, ProjectScreen& window,
                           PreviewScreen& preview, Folders& folders, UserPrompts& prompts,
                           Clock& clock, FileSave fileSave)
    : project_(project),
      rules_(rules),
      window_(window),
      preview_(preview),
      folders_(folders),
      prompts_(prompts),
      clock_(clock),
      fileSave_(std::move(fileSave)) {}

bool DraftPreview::buildFinalDraft() {
    const CommandScope atWork(project_.state);
    if (!rules_.isComplete(SectionRules::FinalDraftTab)) {
        project_.state.draftCurrent = false;
        return false;
    }
    offerToSave();
    window_.setHourglass(true);
    clock_.letEventsRun(0);
    previewHtml_ = u' '; // a text asks for a preview
    HtmlComposer composer(project_.fields, folders_, prompts_);
    const bool composed = composer.ExportToHTML(QStringLiteral("temp.html"), previewHtml_);
    project_.state.draftCurrent = composed;
    preview_.showPreview(previewHtml_);
    project_.state.saveFlag = false;
    window_.setHourglass(false);
    return composed;
}

void DraftPreview::offerToSave() {
    if (!GetSaveFlag(project_.fields, project_.state))
        return;
    if (prompts_.askYesNo(UserPrompts::Icon::None, QStringLiteral("Save Project?"),
                          QStringLiteral("It is recommended you save your project before creating "
                                         "a final draft. Do you wish to save your project now?")))
        fileSave_();
}

} // namespace quillford
