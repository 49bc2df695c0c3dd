#pragma once

#include "core/wizard/FocusOrder.h"
#include "editors/binding/BoundFields.h"
#include "editors/columns/PanelColumn.h"

namespace quillford {

/// Section 6, Sub-Elements: a block for each Main Element.
class PageSubElements final : public QObject {
    Q_OBJECT

public:
    /// Fills `panel`, which owns the page, and makes the blocks that the project has. All other
    /// arguments outlive the page.
    PageSubElements(QWidget& panel, ProjectFields& fields, BoundFields& bound, FocusOrder& order);

    /// Makes `count` blocks stand, scrolled to their top. Fields of new blocks are empty.
    void LayoutSubElements(int count);

    /// Scrolls the blocks to their top and puts each directly under the one before.
    void stackSubElements();

    [[nodiscard]] PanelColumn& column() { return *column_; }

private:
    ProjectFields& fields_;
    FocusOrder& order_;
    PanelColumn* column_;
};

} // namespace quillford
