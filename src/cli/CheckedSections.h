#pragma once

#include "core/fields/Project.h"
#include "core/rules/SectionRules.h"

namespace quillford {

/// The verdicts on the eight sections of a project, where there are no tabs to show them.
class CheckedSections {
public:
    /// Judges every section. Neither argument is owned; both outlive it.
    CheckedSections(const Project& project, UserPrompts& prompts);

    CheckedSections(const CheckedSections&) = delete;
    CheckedSections& operator=(const CheckedSections&) = delete;

    [[nodiscard]] const SectionRules& rules() const noexcept { return rules_; }

private:
    class NoTabs final : public TabLooks {
    public:
        void setTabLook(int, TabLook) override {}

        void setTabPointer(int, TabPointer) override {}

        void showBar(ButtonBar) override {}

        void enableStepButton(StepButton, bool) override {}

        void enableDraftCommands(bool) override {}

        void setDefaultPointer() override {}
    };

    NoTabs tabs_;
    SectionRules rules_;
};

} // namespace quillford
