#pragma once

#include "core/rules/TabLooks.h"
#include "core/wizard/AutoSaveSwitch.h"
#include "core/wizard/EditorColumns.h"
#include "core/wizard/ElementIndexView.h"
#include "core/wizard/Guidance.h"
#include "core/wizard/PageStack.h"
#include "core/wizard/ProjectScreen.h"
#include "core/wizard/TitleLine.h"

namespace quillford {

/// Everything of the window that the wizard's logic speaks to, gathered for handing down. It owns
/// nothing.
struct WizardScreen {
    TabLooks& tabs;
    PageStack& pages;
    EditorColumns& columns;
    Guidance& guidance;
    ElementIndexView& index;
    TitleLine& title;
    ProjectScreen& project;
    AutoSaveSwitch& autoSave;
};

} // namespace quillford
