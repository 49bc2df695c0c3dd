#include "editors/pages/PageInventors.h"

#include "controls/ControlArrays.h"
#include "controls/Theme.h"
#include "editors/columns/FollowFocus.h"
#include "editors/panels/InventorPanel.h"
#include "editors/rules/PanelTabOrder.h"
#include "ui_PageInventors.h"

namespace quillford {

PageInventors::PageInventors(QWidget& panel, ProjectFields& fields, BoundFields& bound,
                             FocusOrder& order)
    : QObject(&panel), fields_(fields), order_(order) {
    const auto parts = fillPanel<Ui::PageInventors>(panel);
    theme::makeHeadings(panel, {u"lblInventors"});
    bound.bindAll(panel);
    QWidget& view = *parts.picInventorsContainer;
    column_ = new PanelColumn(
        EditorColumn::Inventors, view, *parts.vscroll_0,
        [&view, &bound](int inventor) { return new InventorPanel(inventor, view, bound); });
    column_->makePanelsUpTo(fields.txtNameStep2.count());
    followTab(bound, *column_);
    LayoutInventors(fields.panelCount(FieldGroup::Inventors));
}

void PageInventors::LayoutInventors(int count) {
    const int before = fields_.panelCount(FieldGroup::Inventors);
    fields_.setPanelCount(FieldGroup::Inventors, count);
    const int now = fields_.panelCount(FieldGroup::Inventors);
    showInventors(now);
    numberPanels(FieldGroup::Inventors, before, now, order_);
    column_->layOut(now);
}

void PageInventors::showInventors(int count) {
    for (int i = 0; i < column_->panelCount(); ++i)
        static_cast<InventorPanel&>(column_->panel(i)).setShown(i < count);
}

} // namespace quillford
