#pragma once

#include "core/wizard/ElementIndexView.h"
#include "core/wizard/FocusOrder.h"
#include "editors/binding/BoundFields.h"
#include "editors/columns/PanelColumn.h"

namespace quillford {

/// Section 5, Main Elements: a sentence, a count, and a panel for each element.
class PageMainElements final : public QObject {
    Q_OBJECT

public:
    /// Fills `panel`, which owns the page, binds its fields and makes the panels that the project
    /// has. All other arguments outlive the page.
    PageMainElements(QWidget& panel, ProjectFields& fields, BoundFields& bound, FocusOrder& order,
                     ElementIndexView& index);

    /// Makes `count` panels stand, scrolled to their top, and draws the Index of Elements anew.
    /// Fields of new panels are empty; what belonged to a dropped element in Sections 6 and 7 is
    /// emptied with it.
    void LayoutMainElements(int count);

    [[nodiscard]] PanelColumn& column() { return *column_; }

private:
    ProjectFields& fields_;
    FocusOrder& order_;
    ElementIndexView& index_;
    PanelColumn* column_;
};

} // namespace quillford
