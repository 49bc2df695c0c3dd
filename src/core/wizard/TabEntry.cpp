#include "core/wizard/TabEntry.h"

#include <algorithm>

namespace quillford {

TabEntry::TabEntry(ProjectFields& fields, SectionMessages& messages, FocusOrder& focusOrder,
                   WizardScreen& screen)
    : fields_(fields), messages_(messages), focusOrder_(focusOrder), screen_(screen) {}

void TabEntry::enter(int tab) {
    using Work = void (TabEntry::*)();
    static constexpr Work WorkOf[SectionRules::TabCount] = {
        &TabEntry::enterIntroduction, &TabEntry::enterInventors,    &TabEntry::enterObjects,
        &TabEntry::enterFigures,      &TabEntry::enterMainElements, &TabEntry::enterSubElements,
        &TabEntry::enterDescriptions, &TabEntry::enterOperation,    &TabEntry::enterFinalDraft,
        &TabEntry::enterFiling,
    };
    Q_ASSERT(tab >= 0 && tab < SectionRules::TabCount);
    const Work work = WorkOf[tab];
    (this->*work)();
    screen_.pages.page(tab).entered();
    focusOrder_.enterTab(tab, fields_);
}

void TabEntry::enterIntroduction() {
    // Under the Welcome page the panel is disabled, and the focus is the page's.
    if (screen_.pages.isPanelEnabled(0) && screen_.pages.isPanelShown(0))
        screen_.pages.focusField(FieldId::txtFileNo);
}

void TabEntry::enterInventors() {
    screen_.pages.focusPanel(1);
}

void TabEntry::enterObjects() {
    screen_.pages.focusPanel(2);
    screen_.columns.RefreshObjectSentences();
}

void TabEntry::enterFigures() {
    screen_.pages.focusPanel(3);
    const int number = fields_.cboFiguresNum.number();
    if (number != fields_.panelCount(FieldGroup::Figures))
        screen_.columns.LayoutFigures(number);
    // With no figure one panel stays all the same.
    if (number != fields_.panelCount(FieldGroup::Figures))
        screen_.columns.LayoutFigures(1);
    messages_.adviseAboutDrawings();
}

void TabEntry::enterMainElements() {
    screen_.pages.focusPanel(4);
    screen_.columns.LayoutMainElements(fields_.cboMainElementNum.number());
}

void TabEntry::enterSubElements() {
    matchSubElements();
    screen_.columns.stackSubElements();
    screen_.pages.focusPanel(5);
    copyElementNames();
}

void TabEntry::enterDescriptions() {
    screen_.columns.RefreshDescriptionCaptions();
    screen_.columns.scrollDescriptionsToTop();
    screen_.pages.focusPanel(6);
}

void TabEntry::enterOperation() {
    screen_.pages.focusField(FieldId::txtOperation);
}

void TabEntry::enterFinalDraft() {
    screen_.pages.showPanel(8, true);
    screen_.index.enableIndex(true);
}

void TabEntry::enterFiling() {
    screen_.index.enableIndex(false);
}

void TabEntry::matchSubElements() {
    const int number = fields_.cboMainElementNum.number();
    if (number != fields_.panelCount(FieldGroup::SubElements))
        screen_.columns.LayoutSubElements(number);
}

void TabEntry::copyElementNames() {
    const int count = std::min(fields_.txtElementName.count(), fields_.txtElementMain.count());
    for (int i = 0; i < count; ++i)
        fields_.txtElementMain(i).setText(fields_.txtElementName(i).trimmedText());
}

} // namespace quillford
