#pragma once

#include "core/fields/ProjectState.h"
#include "core/rules/SectionRules.h"
#include "core/settings/mdlSystem.h"
#include "core/wizard/SectionMessages.h"
#include "core/wizard/TabEntry.h"
#include "core/wizard/WizardScreen.h"

namespace quillford {

/// Moves the user between the ten tabs. A tab is one panel; Next and Back move by exactly one. Tabs
/// are counted from 0. Nothing here fails.
class WizardNavigator {
public:
    static constexpr int LastTab = SectionRules::TabCount - 1;

    /// Owns none of its arguments; all outlive it.
    WizardNavigator(ProjectState& state, mdlSystem& system, SectionRules& rules,
                    SectionMessages& messages, TabEntry& entry, WizardScreen& screen);

    /// Back, index 0, or Next, index 1. Only Next looks at the section, and warns when it is not
    /// complete.
    void btnStep_Click(int index);

    /// A click on a tab's picture. The Filing page opens from a complete section alone, whatever
    /// the others are.
    void picTab_Click(int index);

    /// Makes a tab current.
    void SwitchTab(int index);

    /// Shows the bar of a tab and does its entry work.
    void TabOperator(int index);

    /// Gives a tab the selected look that fits its tag.
    void paintSelectedTab(int tab);

    /// True shows the step bar, false the export bar.
    void picBtnStepVisible(bool show);

    void showStepBar();

    /// Leaves the Welcome page for Section 1.
    void showSectionOne();

    /// Lays the Welcome page over the sections.
    void showWelcomePage();

private:
    void showBarOf(int tab);
    void movePanels(int oldTab, int newTab);
    void leave(int oldTab);
    void leaveMainElements();
    void refreshElementSections();

    ProjectState& state_;
    mdlSystem& system_;
    SectionRules& rules_;
    SectionMessages& messages_;
    TabEntry& entry_;
    WizardScreen& screen_;
};

} // namespace quillford
