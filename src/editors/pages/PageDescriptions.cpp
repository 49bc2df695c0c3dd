#include "editors/pages/PageDescriptions.h"

#include "controls/ControlArrays.h"
#include "controls/Theme.h"
#include "editors/columns/FollowFocus.h"
#include "editors/columns/PanelCount.h"
#include "editors/panels/DescriptionPanel.h"
#include "editors/panels/FrameCaption.h"
#include "editors/rules/PanelTabOrder.h"
#include "ui_PageDescriptions.h"

namespace quillford {

PageDescriptions::PageDescriptions(QWidget& panel, ProjectFields& fields, BoundFields& bound,
                                   FocusOrder& order, const TextMeasure& measure,
                                   std::function<void()> stackSubElements)
    : QObject(&panel),
      fields_(fields),
      order_(order),
      measure_(measure),
      stackSubElements_(std::move(stackSubElements)),
      parts_(std::make_unique<Ui::PageDescriptions>(fillPanel<Ui::PageDescriptions>(panel))) {
    theme::makeHeadings(panel, {u"lblTab7Part1"});
    for (QLabel* caption : {parts_->lblTab7_0, parts_->lblTab7_1})
        showFrameCaption(*caption, caption->text());
    bound.bindAll(panel);
    QWidget& page = *parts_->picMElements;
    column_ = new PanelColumn(
        EditorColumn::Descriptions, page, *parts_->vscroll_5,
        [&page, &bound](int element) { return new DescriptionPanel(element, page, bound); });
    followTab(bound, *column_);
    connect(&bound, &BoundFields::focusReached, this, &PageDescriptions::focusReached);
    // The last field of the page takes 0 while it has the focus, and so comes before the first.
    order.setTabIndex(controlName({FieldId::txtMainElementNameDetail}), 1);
    LayoutDescriptions(fields.panelCount(FieldGroup::Descriptions));
}

PageDescriptions::~PageDescriptions() = default;

void PageDescriptions::LayoutDescriptions(int count) {
    setPanelCount(*column_, fields_, FieldGroup::Descriptions, count);
    numberDescriptions(column_->panelCount(), order_);
    writeCaptions();
    column_->layOut(column_->panelCount());
    ReflowDescriptions();
}

void PageDescriptions::RefreshDescriptionCaptions() {
    stackSubElements_();
    const int count = fields_.cboMainElementNum.number();
    if (count != column_->panelCount())
        LayoutDescriptions(count);
    writeCaptions();
    ReflowDescriptions();
    if (column_->panelCount() == 1)
        placeParts(
            partsBelowOnePanel(column_->panel(0).height(), parts_->picDesMainAndSub->height()));
    numberDescriptions(column_->panelCount(), order_);
}

void PageDescriptions::scrollDescriptionsToTop() {
    column_->ScrollPanelTo(0, false, 0);
}

/// While the number of elements is being changed there may be more panels than names.
void PageDescriptions::writeCaptions() {
    const int count = column_->panelCount();
    for (int i = 0; i < count; ++i) {
        const QString name =
            i < fields_.txtElementName.count() ? fields_.txtElementName(i).text() : QString();
        static_cast<DescriptionPanel&>(column_->panel(i)).quoteName(name, count, measure_);
    }
}

void PageDescriptions::ReflowDescriptions() {
    column_->reflow();
    placeParts(partsBelowPanels(column_->arithmetic().place().heights,
                                parts_->picDesMainAndSub->height()));
}

void PageDescriptions::placeParts(const DescriptionParts& parts) {
    const auto moveTop = [](QWidget& part, int top) { part.move(part.x(), top); };
    moveTop(*parts_->lblTab7Part1_1, parts.connectionsHeadingTop);
    moveTop(*parts_->picDesMainAndSub, parts.connectionsTop);
    moveTop(*parts_->lblTab7Part1_2, parts.alternativeHeadingTop);
    moveTop(*parts_->picAlternativeFrm, parts.alternativeTop);
    parts_->picMElements->resize(parts_->picMElements->width(), parts.pageHeight);
}

/// The panels follow the Tab key by themselves; the two parts below them do so by rules of their
/// own.
void PageDescriptions::focusReached(const FieldPlace& place, bool byTab) {
    const ColumnPlace& panels = column_->arithmetic().place();
    if (fieldRow(place.field).group == FieldGroup::Descriptions)
        focusedPanel_ = place.index;
    else if (byTab && place.field == FieldId::txtDesConnections)
        follow(FollowTabToConnections(
            panels, {parts_->txtDesConnections->y(), parts_->txtDesConnections->height(), 0},
            parts_->picDesMainAndSub->y()));
    else if (byTab && place.field == FieldId::txtDesAlterative)
        follow(FollowTabToAlternative(panels, focusedPanel_));
}

void PageDescriptions::follow(const std::optional<PanelTarget>& target) {
    if (target)
        column_->ScrollPanelTo(*target);
}

} // namespace quillford
