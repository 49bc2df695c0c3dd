#include "editors/pages/PageMainElements.h"

#include "controls/ControlArrays.h"
#include "controls/Theme.h"
#include "editors/columns/FollowFocus.h"
#include "editors/columns/PanelCount.h"
#include "editors/panels/MainElementPanel.h"
#include "editors/rules/PanelTabOrder.h"
#include "ui_PageMainElements.h"

#include <algorithm>

namespace quillford {

PageMainElements::PageMainElements(QWidget& panel, ProjectFields& fields, BoundFields& bound,
                                   FocusOrder& order, ElementIndexView& index)
    : QObject(&panel), fields_(fields), order_(order), index_(index) {
    const auto parts = fillPanel<Ui::PageMainElements>(panel);
    theme::makeHeadings(panel, {u"lblMainElements"});
    theme::colour(*parts.lnMainElement, theme::Line);
    bound.bindAll(panel);
    QWidget& view = *parts.picMainElement;
    column_ = new PanelColumn(
        EditorColumn::MainElements, view, *parts.vscroll_3,
        [&view, &bound](int element) { return new MainElementPanel(element, view, bound); });
    followTab(bound, *column_);
    LayoutMainElements(fields.panelCount(FieldGroup::MainElements));
}

void PageMainElements::LayoutMainElements(int count) {
    const int before = column_->panelCount();
    setPanelCount(*column_, fields_, FieldGroup::MainElements, count);
    const int now = column_->panelCount();
    numberPanels(FieldGroup::MainElements, std::max(before, 1), now, order_);
    column_->layOut(now);
    index_.RebuildElementIndex();
}

} // namespace quillford
