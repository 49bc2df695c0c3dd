#pragma once

#include "core/rules/TabLooks.h"
#include "shell/StepBar.h"
#include "shell/TabStrip.h"

namespace quillford {

/// The tabs and the bars of buttons, as the section rules and the navigation see them.
class FormLooks final : public TabLooks {
public:
    /// Owns none of its arguments; all outlive it.
    FormLooks(QWidget& form, TabStrip& tabs, StepBar& bar) : form_(form), tabs_(tabs), bar_(bar) {}

    void setTabLook(int tab, TabLook look) override { tabs_.setTabLook(tab, look); }

    void setTabPointer(int tab, TabPointer pointer) override { tabs_.setTabPointer(tab, pointer); }

    void showBar(ButtonBar bar) override { bar_.showBar(bar); }

    void enableStepButton(StepButton button, bool on) override {
        bar_.enableStepButton(button, on);
    }

    void enableDraftCommands(bool on) override { bar_.enableDraftCommands(on); }

    void setDefaultPointer() override { form_.unsetCursor(); }

private:
    QWidget& form_;
    TabStrip& tabs_;
    StepBar& bar_;
};

} // namespace quillford
