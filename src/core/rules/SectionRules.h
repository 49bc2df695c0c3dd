#pragma once

#include "core/fields/ProjectFields.h"
#include "core/fields/ProjectState.h"
#include "core/rules/TabLooks.h"
#include "platform/UserPrompts.h"

#include <QList>
#include <QString>

#include <array>

namespace quillford {

/// How sections are named in a sentence: "Section 3", "Sections 3, 5".
[[nodiscard]] QString namedSections(const QList<int>& numbers);

/// Decides which sections are complete and keeps the verdict in the tag of each tab: empty until
/// the section is first checked, then "OK" or "WARNING". The tag of tab 8, the Final Draft, is the
/// verdict on all eight sections. Nothing but the tags is remembered.
class SectionRules {
public:
    static constexpr int SectionCount = 8;
    static constexpr int FinalDraftTab = 8;
    static constexpr int TabCount = 10;

    /// Owns none of its arguments; all outlive it.
    SectionRules(const ProjectFields& fields, const ProjectState& state, TabLooks& looks,
                 UserPrompts& prompts);

    /// The tag of `picTab(tab)`; `tab` is 0 to 9. Only "OK" counts as complete.
    [[nodiscard]] const QString& tag(int tab) const;

    [[nodiscard]] bool isComplete(int tab) const;

    /// The numbers, 1 to 8, of the sections whose tag is not "OK", in rising order.
    [[nodiscard]] QList<int> incompleteSections() const;

    /// Sets the tag of a section's tab by its rule. Touches neither pictures nor tab 8; a tab
    /// without a section does nothing. A failure in between is shown in a box titled "Error" and
    /// leaves the tag as it was.
    void validateSection(int tab);

    /// The same, but the verdict goes through `setSectionStatus`, and tab 8 is judged anew; for a
    /// tab without a section only the latter. As long as a section is incomplete the draft commands
    /// are disabled; building the draft enables them.
    void refreshSection(int tab);

    /// Gives the tab the picture of the status, not selected, and then keeps the status as its tag.
    void setSectionStatus(int tab, const QString& status);

    /// Empties all tags and gives every tab the incomplete look, not selected: a new project's.
    void forgetVerdicts();

    /// True when the section of `tab` (0 to 7) has all its required fields.
    [[nodiscard]] bool sectionIsFilled(int tab) const;

private:
    [[nodiscard]] bool introductionIsFilled() const;
    [[nodiscard]] bool inventorsAreFilled() const;
    [[nodiscard]] bool objectsAreFilled() const;
    [[nodiscard]] bool figuresAreFilled() const;
    [[nodiscard]] bool mainElementsAreFilled() const;
    [[nodiscard]] bool subElementsAreFilled() const;
    [[nodiscard]] bool descriptionsAreFilled() const;
    [[nodiscard]] bool operationIsFilled() const;
    [[nodiscard]] bool requiredSinglesAreFilled(int section) const;
    [[nodiscard]] bool isFilledWhereVisible(const FieldArray& fields) const;

    template <typename Step>
    void trapped(Step step);

    const ProjectFields& fields_;
    const ProjectState& state_;
    TabLooks& looks_;
    UserPrompts& prompts_;
    std::array<QString, TabCount> tags_;
};

} // namespace quillford
