#pragma once

#include "core/wizard/PageStack.h"
#include "editors/binding/BoundFields.h"
#include "shell/HelpPane.h"

#include <QList>
#include <QWidget>

#include <array>

namespace quillford {

/// The ten panels `picContainer(i)` of the form. Each lets its page be told of switches; a panel
/// without a page of its own has an idle one.
class PanelStack final : public PageStack {
public:
    /// The panels stand below `form`. Owns none of its arguments; all outlive it.
    PanelStack(QWidget& form, HelpPane& help, BoundFields& bound);

    /// Puts a page in charge of a tab. Not owned; outlives the stack.
    void setPage(int tab, SectionPage& page) { pages_[static_cast<std::size_t>(tab)] = &page; }

    [[nodiscard]] QWidget& panel(int tab) const { return *panels_[tab]; }

    [[nodiscard]] SectionPage& page(int tab) override {
        return *pages_[static_cast<std::size_t>(tab)];
    }

    void enablePanel(int tab, bool on) override;
    [[nodiscard]] bool isPanelEnabled(int tab) const override;
    void bringPanelToFront(int tab) override;
    void showPanel(int tab, bool on) override;
    [[nodiscard]] bool isPanelShown(int tab) const override;
    void focusPanel(int tab) override;
    void focusField(FieldId field, int index) override;

    void HelpOn(int tab) override { help_.HelpOn(tab); }

private:
    class IdlePage final : public SectionPage {
    public:
        void entered() override {}

        void switched() override {}
    };

    HelpPane& help_;
    BoundFields& bound_;
    IdlePage idle_;
    QList<QWidget*> panels_;
    std::array<SectionPage*, 10> pages_{};
};

} // namespace quillford
