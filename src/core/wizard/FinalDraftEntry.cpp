#include "core/wizard/FinalDraftEntry.h"

#include "core/fields/SaveFlag.h"

namespace quillford {

FinalDraftEntry::FinalDraftEntry(const ProjectFields& fields, ProjectState& state,
                                 const SectionRules& rules, TabLooks& looks)
    : fields_(fields), state_(state), rules_(rules), looks_(looks) {}

QString FinalDraftEntry::switched(const Build& buildFinalDraft) {
    const bool changed = GetSaveFlag(fields_, state_);
    const bool stale = !state_.draftCurrent || changed;
    if (stale && buildFinalDraft())
        looks_.enableDraftCommands(true);
    return missingSectionsHtml(rules_.incompleteSections());
}

QString missingSectionsHtml(const QList<int>& sections) {
    if (sections.isEmpty())
        return {};
    return QStringLiteral("<font size=4><span style=font-family:MS Sans Serif>Data is missing from "
                          "%1. The Final Draft will be displayed after each section is complete."
                          "</span></font>")
        .arg(namedSections(sections));
}

} // namespace quillford
