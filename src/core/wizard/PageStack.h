#pragma once

#include "core/fields/FieldTable.h"

namespace quillford {

/// The page of one tab, as the navigation sees it.
class SectionPage {
public:
    virtual ~SectionPage() = default;

    /// The page's own entry work: what concerns no control but its own. What the navigation says of
    /// columns of panels, fields and message windows is done already; the tab's picture is painted
    /// afterwards.
    virtual void entered() = 0;

    /// The switch to the page is done, and the page is the current one. May take its time and ask
    /// the user.
    virtual void switched() = 0;
};

/// The ten panels `picContainer(i)`, which lie on top of each other, and the help beside them. Tabs
/// are counted from 0. Nothing here fails.
class PageStack {
public:
    virtual ~PageStack() = default;

    /// The page on the panel of a tab. It lives as long as the stack.
    [[nodiscard]] virtual SectionPage& page(int tab) = 0;

    virtual void enablePanel(int tab, bool on) = 0;
    [[nodiscard]] virtual bool isPanelEnabled(int tab) const = 0;

    virtual void bringPanelToFront(int tab) = 0;

    /// Panels other than those of the Final Draft and of the Filing page are shown always.
    virtual void showPanel(int tab, bool on) = 0;
    [[nodiscard]] virtual bool isPanelShown(int tab) const = 0;

    /// Moves the focus onto the panel itself, away from its fields.
    virtual void focusPanel(int tab) = 0;

    /// Moves the focus into a field; `index` is 0 for a field that stands once. Nothing happens
    /// while the field is disabled.
    virtual void focusField(FieldId field, int index = 0) = 0;

    /// Shows the start page of a tab's help.
    virtual void HelpOn(int tab) = 0;
};

} // namespace quillford
