#include "editors/rules/ScrollColumn.h"

#include <algorithm>

namespace quillford {

namespace {

/// The first heading of the page stands above the descriptions.
constexpr int DescriptionsTop = 28;

} // namespace

ScrollColumn::ScrollColumn(EditorColumn column) : column_(column) {
    layOut({0});
}

void ScrollColumn::layOut(const QList<int>& heights) {
    bar_.value = 0;
    reflow(heights);
}

void ScrollColumn::reflow(const QList<int>& heights) {
    place_.heights = heights;
    const int value = bar_.value;
    bar_ = scrollBarFor(column_, heights);
    vscroll_Change(value);
}

void ScrollColumn::vscroll_Change(int value) {
    bar_.value = std::clamp(value, 0, bar_.maximum);
    restack();
}

void ScrollColumn::ScrollPanelTo(int row, bool atEnd, int position) {
    if (bar_.enabled)
        vscroll_Change(valueFor(row, atEnd, position));
}

void ScrollColumn::ScrollPanelTo(const PanelTarget& target) {
    ScrollPanelTo(target.row, target.atEnd, target.position);
}

int ScrollColumn::valueFor(int row, bool atEnd, int position) const {
    switch (column_) {
    case EditorColumn::Objects:
        return row < 3 ? 0 : position;
    case EditorColumn::Figures:
    case EditorColumn::SubElements:
        return row < 1 ? 0 : position;
    case EditorColumn::Inventors:
    case EditorColumn::MainElements:
    case EditorColumn::Descriptions:
        break;
    }
    if (!atEnd)
        return position;
    return row >= 1 ? bar_.maximum : 0;
}

/// Stacking from the first panel at every change lets a panel grow without any other bookkeeping.
void ScrollColumn::restack() {
    const bool movesPage = column_ == EditorColumn::Descriptions;
    place_.pageTop = movesPage ? -bar_.value : 0;
    place_.tops.clear();
    int top = movesPage ? DescriptionsTop : -bar_.value;
    for (const int height : place_.heights) {
        place_.tops.append(top);
        top += height;
    }
}

} // namespace quillford
