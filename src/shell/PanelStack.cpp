#include "shell/PanelStack.h"

#include "core/rules/SectionRules.h"
#include "core/wizard/FocusOrder.h"

namespace quillford {

PanelStack::PanelStack(QWidget& form, HelpPane& help, BoundFields& bound)
    : help_(help), bound_(bound) {
    pages_.fill(&idle_);
    for (int tab = 0; tab < SectionRules::TabCount; ++tab) {
        auto* panel = form.findChild<QWidget*>(controlName(u"picContainer", tab));
        panel->setFocusPolicy(Qt::ClickFocus);
        panel->setAutoFillBackground(true);
        panels_.append(panel);
        panel->setEnabled(tab == 0);
        panel->setVisible(tab < SectionRules::FinalDraftTab);
    }
    bringPanelToFront(0);
}

void PanelStack::enablePanel(int tab, bool on) {
    panels_[tab]->setEnabled(on);
}

bool PanelStack::isPanelEnabled(int tab) const {
    return panels_[tab]->isEnabledTo(panels_[tab]->parentWidget());
}

void PanelStack::bringPanelToFront(int tab) {
    panels_[tab]->raise();
}

void PanelStack::showPanel(int tab, bool on) {
    panels_[tab]->setVisible(on);
}

bool PanelStack::isPanelShown(int tab) const {
    return !panels_[tab]->isHidden();
}

void PanelStack::focusPanel(int tab) {
    panels_[tab]->setFocus(Qt::OtherFocusReason);
}

void PanelStack::focusField(FieldId field, int index) {
    if (QWidget* control = bound_.control({field, index}))
        control->setFocus(Qt::OtherFocusReason);
}

} // namespace quillford
