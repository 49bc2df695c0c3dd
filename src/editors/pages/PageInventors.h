#pragma once

#include "core/wizard/FocusOrder.h"
#include "editors/binding/BoundFields.h"
#include "editors/columns/PanelColumn.h"

namespace quillford {

/// Section 2, Inventors: a count, and a panel for each of one to eight inventors. All eight panels
/// stand from the start, and as many as there are inventors are shown.
class PageInventors final : public QObject {
    Q_OBJECT

public:
    /// Fills `panel`, which owns the page, binds its fields and shows the inventors that the
    /// project has. All other arguments outlive the page.
    PageInventors(QWidget& panel, ProjectFields& fields, BoundFields& bound, FocusOrder& order);

    /// Shows `count` inventors, scrolled to the top. The fields of those that are hidden are
    /// emptied, so that an inventor who is shown again starts empty.
    void LayoutInventors(int count);

    [[nodiscard]] PanelColumn& column() { return *column_; }

private:
    void showInventors(int count);

    ProjectFields& fields_;
    FocusOrder& order_;
    PanelColumn* column_;
};

} // namespace quillford
