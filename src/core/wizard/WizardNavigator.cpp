#include "core/wizard/WizardNavigator.h"

namespace quillford {

namespace {

constexpr int IntroductionTab = 0;
constexpr int MainElementsTab = 4;
constexpr int SubElementsTab = 5;
constexpr int DescriptionsTab = 6;
constexpr int FinalDraftTab = SectionRules::FinalDraftTab;
constexpr int FilingTab = WizardNavigator::LastTab;

} // namespace

WizardNavigator::WizardNavigator(ProjectState& state, mdlSystem& system, SectionRules& rules,
                                 SectionMessages& messages, TabEntry& entry, WizardScreen& screen)
    : state_(state),
      system_(system),
      rules_(rules),
      messages_(messages),
      entry_(entry),
      screen_(screen) {}

void WizardNavigator::btnStep_Click(int index) {
    screen_.pages.enablePanel(state_.currentTab, true);
    if (index == static_cast<int>(StepButton::Back)) {
        if (state_.currentTab >= 1)
            SwitchTab(state_.currentTab - 1);
        return;
    }
    if (state_.currentTab >= LastTab)
        return;
    rules_.validateSection(state_.currentTab);
    if (rules_.isComplete(state_.currentTab) || messages_.mayLeaveIncompleteSection())
        SwitchTab(state_.currentTab + 1);
    else
        screen_.guidance.TextgotFocus(state_.currentTab);
}

void WizardNavigator::picTab_Click(int index) {
    const int current = state_.currentTab;
    if (index == current)
        return;
    // It is the tag of the tab that is left which counts, as it was at the last check.
    if (index == FilingTab && !rules_.isComplete(current))
        return messages_.tellNotReadyToFile();
    rules_.refreshSection(current);
    paintSelectedTab(current);
    if (current >= FinalDraftTab || rules_.isComplete(current)) {
        screen_.guidance.TextHighLight(index);
        SwitchTab(index);
    } else if (messages_.mayLeaveIncompleteSection()) {
        SwitchTab(index);
        screen_.guidance.TextHighLight(index);
    } else {
        screen_.guidance.TextHighLight(current);
        screen_.guidance.TextgotFocus(current);
    }
}

void WizardNavigator::SwitchTab(int index) {
    Q_ASSERT(index >= 0 && index <= LastTab);
    screen_.pages.HelpOn(index);
    const int oldTab = state_.currentTab;
    screen_.tabs.enableStepButton(StepButton::Back, index != IntroductionTab);
    screen_.tabs.enableStepButton(StepButton::Next, true);
    screen_.tabs.setTabPointer(oldTab, TabPointer::Hand);
    screen_.tabs.setTabPointer(index, TabPointer::Default);
    paintSelectedTab(index);
    movePanels(oldTab, index);
    leave(oldTab);
    state_.targetTab = index;
    rules_.refreshSection(state_.currentTab);
    state_.currentTab = state_.targetTab;
    TabOperator(state_.targetTab);
    paintSelectedTab(index);
    ++system_.tabSwitchCount;
    screen_.pages.page(index).switched();
}

void WizardNavigator::movePanels(int oldTab, int newTab) {
    PageStack& pages = screen_.pages;
    pages.enablePanel(oldTab, false);
    pages.enablePanel(newTab, true);
    pages.bringPanelToFront(newTab);
    // The entry work shows the Final Draft again when the switch is nearly done.
    if (newTab == FinalDraftTab && pages.isPanelShown(FinalDraftTab))
        pages.showPanel(FinalDraftTab, false);
    if (newTab == FilingTab)
        pages.showPanel(FilingTab, true);
    else if (pages.isPanelShown(FilingTab))
        pages.showPanel(FilingTab, false);
}

void WizardNavigator::leave(int oldTab) {
    if (oldTab == FilingTab)
        screen_.tabs.setTabLook(FilingTab, TabLook::Incomplete);
    if (oldTab == MainElementsTab)
        leaveMainElements();
    if (oldTab == MainElementsTab || oldTab == SubElementsTab)
        refreshElementSections();
}

void WizardNavigator::leaveMainElements() {
    entry_.matchSubElements();
    screen_.columns.RefreshDescriptionCaptions();
    entry_.copyElementNames();
}

void WizardNavigator::refreshElementSections() {
    for (const int tab : {MainElementsTab, SubElementsTab, DescriptionsTab})
        rules_.refreshSection(tab);
    screen_.index.RebuildElementIndex();
}

void WizardNavigator::TabOperator(int index) {
    showBarOf(index);
    if (index == FinalDraftTab)
        paintSelectedTab(FinalDraftTab);
    entry_.enter(index);
}

void WizardNavigator::showBarOf(int tab) {
    if (tab == FilingTab)
        screen_.tabs.showBar(ButtonBar::None);
    else if (tab == FinalDraftTab)
        picBtnStepVisible(false);
    else
        showStepBar();
}

void WizardNavigator::paintSelectedTab(int tab) {
    screen_.tabs.setTabLook(tab, rules_.isComplete(tab) ? TabLook::CompleteSelected
                                                        : TabLook::IncompleteSelected);
}

void WizardNavigator::picBtnStepVisible(bool show) {
    screen_.tabs.showBar(show ? ButtonBar::Step : ButtonBar::Export);
}

void WizardNavigator::showStepBar() {
    picBtnStepVisible(true);
}

void WizardNavigator::showSectionOne() {
    screen_.project.hideWelcomePage();
    screen_.pages.enablePanel(IntroductionTab, true);
    screen_.autoSave.setAutoSaveEnabled(true);
    screen_.pages.focusField(FieldId::txtFileNo);
}

void WizardNavigator::showWelcomePage() {
    screen_.project.showWelcomePage();
    screen_.pages.enablePanel(IntroductionTab, false);
}

} // namespace quillford
