#include "editors/pages/PageSubElements.h"

#include "controls/ControlArrays.h"
#include "controls/Theme.h"
#include "editors/columns/FollowFocus.h"
#include "editors/columns/PanelCount.h"
#include "editors/panels/SubElementPanel.h"
#include "editors/rules/ElementCaptions.h"
#include "editors/rules/PanelTabOrder.h"
#include "ui_PageSubElements.h"

namespace quillford {

PageSubElements::PageSubElements(QWidget& panel, ProjectFields& fields, BoundFields& bound,
                                 FocusOrder& order)
    : QObject(&panel), fields_(fields), order_(order) {
    const auto parts = fillPanel<Ui::PageSubElements>(panel);
    theme::makeHeadings(panel, {u"lblSubElements"});
    theme::colour(*parts.lnSubElement, theme::Line);
    parts.lblIndexElem->setText(labelElementsReminder());
    QWidget& view = *parts.picElementUsersName;
    column_ = new PanelColumn(
        EditorColumn::SubElements, view, *parts.vscroll_4,
        [&view, &bound](int element) { return new SubElementPanel(element, view, bound); });
    followTab(bound, *column_);
    LayoutSubElements(fields.panelCount(FieldGroup::SubElements));
}

void PageSubElements::LayoutSubElements(int count) {
    setPanelCount(*column_, fields_, FieldGroup::SubElements, count);
    ResetSubElementTabOrder(column_->panelCount(), order_);
    stackSubElements();
}

void PageSubElements::stackSubElements() {
    column_->layOut(column_->panelCount());
}

} // namespace quillford
