#pragma once

#include "core/fields/ProjectFields.h"
#include "core/fields/ProjectState.h"
#include "core/rules/SectionRules.h"

#include <QList>
#include <QString>

#include <functional>

namespace quillford {

/// What the page of the Final Draft does when the switch to it is done.
class FinalDraftEntry {
public:
    /// Builds the Final Draft, and answers whether it did.
    using Build = std::function<bool()>;

    /// Owns none of its arguments; all outlive it.
    FinalDraftEntry(const ProjectFields& fields, ProjectState& state, const SectionRules& rules,
                    TabLooks& looks);

    /// Builds the draft unless the one on screen is still current, and enables the draft commands
    /// when it was built. Answers the body to be put into the preview: nothing while all sections
    /// are complete, otherwise the sentence that says what is missing.
    [[nodiscard]] QString switched(const Build& buildFinalDraft);

private:
    const ProjectFields& fields_;
    ProjectState& state_;
    const SectionRules& rules_;
    TabLooks& looks_;
};

/// The sentence about sections, by their numbers, whose data is missing; HTML. Empty without any.
[[nodiscard]] QString missingSectionsHtml(const QList<int>& sections);

} // namespace quillford
