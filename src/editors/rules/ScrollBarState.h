#pragma once

#include "editors/rules/EditorColumn.h"

#include <QList>

namespace quillford {

/// What a scroll bar is set to, in logical pixels. The smallest value is 0.
struct ScrollBarState {
    bool enabled = false;
    int value = 0;
    int maximum = 0;
    int largeChange = 0;

    friend bool operator==(const ScrollBarState&, const ScrollBarState&) = default;
};

/// The bar of a column whose panels have these heights, from the first on; there is at least one.
/// The value is 0. A bar that is disabled has nowhere to go: its maximum is 0. Where the panels of
/// a column differ in height the range is an estimate from the first two.
[[nodiscard]] ScrollBarState scrollBarFor(EditorColumn column, const QList<int>& heights);

enum class WheelNotch { Up, Down };

/// The value after one notch of the mouse wheel: a large change, and not beyond the ends.
[[nodiscard]] int valueAfterNotch(const ScrollBarState& bar, WheelNotch notch);

} // namespace quillford
