#pragma once

#include "core/fields/ProjectFields.h"
#include "core/rules/SectionRules.h"
#include "core/wizard/FocusOrder.h"
#include "core/wizard/SectionMessages.h"
#include "core/wizard/WizardScreen.h"

namespace quillford {

/// What is done when a tab is entered, one function a tab.
class TabEntry {
public:
    /// Owns none of its arguments; all outlive it.
    TabEntry(ProjectFields& fields, SectionMessages& messages, FocusOrder& focusOrder,
             WizardScreen& screen);

    /// The entry work of a tab, 0 to 9; then that of its page; then the order of the Tab key.
    void enter(int tab);

    /// Makes the blocks of Section 6 as many as there are Main Elements, if they are not.
    void matchSubElements();

    /// Gives each Main Element of Section 6 the name that it has in Section 5.
    void copyElementNames();

private:
    void enterIntroduction();
    void enterInventors();
    void enterObjects();
    void enterFigures();
    void enterMainElements();
    void enterSubElements();
    void enterDescriptions();
    void enterOperation();
    void enterFinalDraft();
    void enterFiling();

    ProjectFields& fields_;
    SectionMessages& messages_;
    FocusOrder& focusOrder_;
    WizardScreen& screen_;
};

} // namespace quillford
