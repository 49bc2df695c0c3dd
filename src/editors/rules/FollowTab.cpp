#include "editors/rules/FollowTab.h"

#include <cstdlib>
#include <numeric>

namespace quillford {

namespace {

/// The fitting constant places the field, the limit tells whether it is in view. They are separate
/// numbers, also where they are equal.
struct Fit {
    int fitting;
    int limit;
};

constexpr Fit Fits[] = {{404, 404}, {316, 318}, {344, 344}, {278, 278}, {376, 376}, {399, 429}};
constexpr Fit ConnectionsFit = {368, 429};

int sumOfFirst(const QList<int>& heights, qsizetype panels) {
    return std::accumulate(heights.begin(), heights.begin() + panels, 0);
}

int panelOffset(EditorColumn column, const QList<int>& heights, int panel) {
    constexpr int InventorsMargin = 24;
    switch (column) {
    case EditorColumn::Inventors:
        return heights.value(1) * panel + InventorsMargin;
    case EditorColumn::Objects:
    case EditorColumn::Descriptions:
        return sumOfFirst(heights, panel);
    case EditorColumn::Figures:
    case EditorColumn::MainElements:
    case EditorColumn::SubElements:
        break;
    }
    return heights.first() * panel;
}

std::optional<PanelTarget> moveUnlessVisible(Fit fit, int bottom, int end, int panel) {
    if (bottom >= 0 && bottom <= fit.limit)
        return std::nullopt;
    const int target = end - fit.fitting;
    return PanelTarget{panel, false, panel == 0 && target < 0 ? 0 : target};
}

} // namespace

std::optional<EditorColumn> columnFollowing(FieldId field) {
    const FieldRow& row = fieldRow(field);
    switch (row.group) {
    case FieldGroup::Inventors: // their lists are reached with the text before them
        return row.kind == FieldKind::Text ? std::optional(EditorColumn::Inventors) : std::nullopt;
    case FieldGroup::Objects:
        return EditorColumn::Objects;
    case FieldGroup::Figures: // a path is not typed
        return field == FieldId::txtAttachFig ? std::nullopt : std::optional(EditorColumn::Figures);
    case FieldGroup::MainElements:
        return EditorColumn::MainElements;
    case FieldGroup::SubElements:
        return EditorColumn::SubElements;
    case FieldGroup::Descriptions:
        return EditorColumn::Descriptions;
    case FieldGroup::Single:
        break;
    }
    if (field == FieldId::chkSameAsContact)
        return EditorColumn::Inventors;
    const bool isBelowDescriptions =
        field == FieldId::txtDesConnections || field == FieldId::txtDesAlterative;
    return isBelowDescriptions ? std::optional(EditorColumn::Descriptions) : std::nullopt;
}

std::optional<PanelTarget> FollowTab(EditorColumn column, const ColumnPlace& place,
                                     FocusedControl control) {
    const int end = control.top + control.height;
    const int bottom = end + std::abs(place.tops.at(control.panel)) + place.pageTop;
    return moveUnlessVisible(Fits[static_cast<int>(column)], bottom,
                             end + panelOffset(column, place.heights, control.panel),
                             control.panel);
}

std::optional<PanelTarget> FollowTabToConnections(const ColumnPlace& descriptions,
                                                  FocusedControl control, int partTop) {
    const int end = control.top + control.height;
    const int offset = sumOfFirst(descriptions.heights, descriptions.heights.size());
    return moveUnlessVisible(ConnectionsFit, end + std::abs(partTop), end + offset, 0);
}

std::optional<PanelTarget> FollowTabToAlternative(const ColumnPlace& descriptions,
                                                  int focusedPanel) {
    if (focusedPanel + 1 < descriptions.heights.size())
        return std::nullopt;
    return PanelTarget{focusedPanel + 1, true, 0};
}

} // namespace quillford
