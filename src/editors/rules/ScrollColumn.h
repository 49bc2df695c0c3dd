#pragma once

#include "editors/rules/FollowTab.h"
#include "editors/rules/ScrollBarState.h"

namespace quillford {

/// One column of panels with its scroll bar, as numbers: the heights of the panels and the value of
/// the bar go in, the places of the panels and the state of the bar come out. The panels have no
/// gaps between them. All lengths are logical pixels.
///
/// Five of the columns move their panels; the descriptions stand still on a page that is moved as a
/// whole.
class ScrollColumn {
public:
    /// A column of one panel without height until the first layout.
    explicit ScrollColumn(EditorColumn column);

    /// The panels have been laid out anew: the column is at its top. `heights` are those of the
    /// panels that count, of the inventors those shown; there is at least one.
    void layOut(const QList<int>& heights);

    /// The panels have other heights: the column keeps its place as far as the new range allows.
    void reflow(const QList<int>& heights);

    /// The value of the bar has changed. A value beyond the ends counts as the end.
    void vscroll_Change(int value);

    /// Brings a panel into view, by the rule of the column's scroll bar. Does nothing while the bar
    /// is disabled.
    void ScrollPanelTo(int row, bool atEnd, int position);

    /// The same for what one of the `FollowTab` operations answered.
    void ScrollPanelTo(const PanelTarget& target);

    [[nodiscard]] EditorColumn column() const noexcept { return column_; }

    [[nodiscard]] const ScrollBarState& bar() const noexcept { return bar_; }

    /// Tops of the panels in the view, of the descriptions on their page; and the top of that page,
    /// 0 for the other columns. Made for `FollowTab`, too.
    [[nodiscard]] const ColumnPlace& place() const noexcept { return place_; }

private:
    void restack();
    [[nodiscard]] int valueFor(int row, bool atEnd, int position) const;

    EditorColumn column_;
    ScrollBarState bar_;
    ColumnPlace place_;
};

} // namespace quillford
