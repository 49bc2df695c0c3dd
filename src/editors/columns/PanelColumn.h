#pragma once

#include "editors/rules/ScrollColumn.h"

#include <QList>
#include <QObject>
#include <QScrollBar>
#include <QWidget>

#include <functional>

namespace quillford {

/// A column of panels on screen with its scroll bar `vscroll(i)`. It makes and drops panels, and
/// puts them and the bar where `ScrollColumn` says.
class PanelColumn final : public QObject {
    Q_OBJECT

public:
    /// Makes the panel with this index, as a child of the column's view and hidden. Its height is
    /// set already.
    using MakePanel = std::function<QWidget*(int index)>;

    /// @param view  what the panels stand on; for the descriptions the page `picMElements`, which
    ///              is moved as a whole
    /// @param bar   the column's scroll bar
    /// Both outlive the column; `view` owns the panels.
    PanelColumn(EditorColumn column, QWidget& view, QScrollBar& bar, MakePanel makePanel);

    /// Destroys the panels from `count` on, the last one first, with all controls in them.
    void dropPanelsFrom(int count);

    /// Makes the panels that are missing up to `count`, and shows them.
    void makePanelsUpTo(int count);

    [[nodiscard]] int panelCount() const { return static_cast<int>(panels_.size()); }

    [[nodiscard]] QWidget& panel(int index) const { return *panels_[index]; }

    /// The panels have been laid out: scrolls to the top, stacks the first `shown` panels by their
    /// heights and sets the bar.
    void layOut(int shown);

    /// The panels have new heights: stacks them anew and keeps the place as far as it goes.
    void reflow();

    void ScrollPanelTo(int row, bool atEnd, int position);
    void ScrollPanelTo(const PanelTarget& target);

    [[nodiscard]] const ScrollColumn& arithmetic() const { return arithmetic_; }

    /// Brings a control of a panel into view when the Tab key has reached it. `panel` is its
    /// panel's index, and the control stands directly on that panel.
    void FollowTab(const QWidget& control, int panel);

private:
    [[nodiscard]] QList<int> heights(int shown) const;
    void vscroll_Change(int value);
    void obey();

    QWidget& view_;
    QScrollBar& bar_;
    MakePanel makePanel_;
    QList<QWidget*> panels_;
    ScrollColumn arithmetic_;
    int shown_ = 0;
};

} // namespace quillford
