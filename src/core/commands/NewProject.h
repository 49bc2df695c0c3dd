#pragma once

#include "core/commands/ProjectStore.h"
#include "core/fields/Project.h"
#include "core/rules/SectionRules.h"
#include "core/settings/mdlSystem.h"
#include "core/wizard/WizardNavigator.h"
#include "core/wizard/WizardScreen.h"
#include "platform/Clock.h"
#include "platform/SpellEngine.h"

namespace quillford {

/// Puts the fields and the wizard into the state of a new project. Nothing else resets fields.
class NewProject {
public:
    /// Owns none of its arguments; all outlive it.
    NewProject(Project& project, mdlSystem& system, SectionRules& rules, WizardNavigator& navigator,
               WizardScreen& screen, ProjectStore& store, SpellEngine& spelling, Clock& clock);

    /// Asks nothing: what the fields held is gone. Window events are handled for a second in the
    /// middle of it. `chkSameAsContact` and `verifyPassed` stay as they are. Never fails.
    void NewFile();

private:
    void clearOpenMarker();
    void reloadDictionary();
    void clearFigures();
    void forgetFile();
    void layOutPanels();
    void setDefaults();
    void emptyTexts();
    void hideWelcomePage();
    void showFirstSection();

    Project& project_;
    mdlSystem& system_;
    SectionRules& rules_;
    WizardNavigator& navigator_;
    WizardScreen& screen_;
    ProjectStore& store_;
    SpellEngine& spelling_;
    Clock& clock_;
};

} // namespace quillford
