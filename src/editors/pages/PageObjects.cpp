#include "editors/pages/PageObjects.h"

#include "controls/ControlArrays.h"
#include "controls/Theme.h"
#include "editors/columns/FollowFocus.h"
#include "editors/columns/PanelCount.h"
#include "editors/panels/ObjectPanel.h"
#include "editors/rules/PanelTabOrder.h"
#include "ui_PageObjects.h"

#include <algorithm>

namespace quillford {

PageObjects::PageObjects(QWidget& panel, ProjectFields& fields, BoundFields& bound,
                         FocusOrder& order)
    : QObject(&panel), fields_(fields), order_(order) {
    const auto parts = fillPanel<Ui::PageObjects>(panel);
    theme::makeHeadings(panel, {u"lblPurposeAndObjects"});
    theme::colour(*parts.lnObjects, theme::Line);
    bound.bindAll(panel);
    QWidget& view = *parts.picObjectsContainer;
    column_ =
        new PanelColumn(EditorColumn::Objects, view, *parts.vscroll_1, [&view, &bound](int object) {
            return new ObjectPanel(object, view, bound);
        });
    followTab(bound, *column_);
    // The sentences are written, and the panels numbered, before the section's own fields are.
    order.setTabIndex(controlName({FieldId::txtObject}), 2);
    LayoutObjects(fields.panelCount(FieldGroup::Objects));
}

void PageObjects::LayoutObjects(int count) {
    const int before = column_->panelCount();
    setPanelCount(*column_, fields_, FieldGroup::Objects, count);
    const int now = column_->panelCount();
    for (int i = before; i < now; ++i)
        writeSentence(i, SentenceWriter::Layout);
    if (now > before)
        writeSentence(0, SentenceWriter::Layout);
    numberPanels(FieldGroup::Objects, std::max(before, 1), now, order_);
    column_->layOut(now);
}

void PageObjects::RefreshObjectSentences() {
    writeSentence(0, SentenceWriter::Refresh);
    const int count = fields_.cboObjectNum.number();
    if (count != column_->panelCount()) {
        LayoutObjects(count);
        return;
    }
    for (int i = 1; i < count; ++i)
        writeSentence(i, SentenceWriter::Refresh);
    numberPanels(FieldGroup::Objects, 1, count, order_);
    column_->layOut(count);
}

void PageObjects::writeSentence(int object, SentenceWriter writer) {
    static_cast<ObjectPanel&>(column_->panel(object))
        .showSentence(objectCaptions(object, fields_.txtInventionTitle.text(), writer));
}

} // namespace quillford
