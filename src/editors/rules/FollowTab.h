#pragma once

#include "core/fields/FieldTable.h"
#include "editors/rules/EditorColumn.h"

#include <QList>

#include <optional>

/// How the view follows the Tab key from field to field. The rules hold while the key is down:
/// focus set by the mouse or by the program moves nothing. All lengths are logical pixels.
namespace quillford {

/// The column that follows the Tab key when it reaches this field; nothing for a field that no view
/// follows. Beside fields, the button `imgBrowse(i)` is followed in the column of figures.
[[nodiscard]] std::optional<EditorColumn> columnFollowing(FieldId field);

/// The field that the Tab key has reached: its place in its panel, and the panel's index.
struct FocusedControl {
    int top;
    int height;
    int panel;
};

/// A call of `ScrollPanelTo` of the field's column.
struct PanelTarget {
    int row;
    bool atEnd;
    int position;

    friend bool operator==(const PanelTarget&, const PanelTarget&) = default;
};

/// Where a column stands: the heights of its panels and their tops in the view; for the
/// descriptions the tops on their page, and the page's own top in the view.
struct ColumnPlace {
    QList<int> heights;
    QList<int> tops;
    int pageTop = 0;
};

/// The scroll that brings a field of a panel into view; nothing when it is taken as visible.
[[nodiscard]] std::optional<PanelTarget> FollowTab(EditorColumn column, const ColumnPlace& place,
                                                   FocusedControl control);

/// The same for `txtDesConnections`, which stands below the descriptions' panels on the part
/// `picDesMainAndSub`, whose top on the page is `partTop`. The index in `control` plays no part.
[[nodiscard]] std::optional<PanelTarget>
FollowTabToConnections(const ColumnPlace& descriptions, FocusedControl control, int partTop);

/// The same for `txtDesAlterative` at the end of the page. `focusedPanel` is the description panel
/// that had the focus last, 0 when none had it: the view moves when that was the last one.
[[nodiscard]] std::optional<PanelTarget> FollowTabToAlternative(const ColumnPlace& descriptions,
                                                                int focusedPanel);

} // namespace quillford
