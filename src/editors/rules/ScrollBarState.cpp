#include "editors/rules/ScrollBarState.h"

#include <algorithm>

namespace quillford {

namespace {

ScrollBarState disabled(int largeChange) {
    return {false, 0, 0, largeChange};
}

ScrollBarState upTo(int maximum, int largeChange) {
    return {true, 0, maximum, largeChange};
}

ScrollBarState inventorsBar(int panels, int first, int other) {
    constexpr int Margin = 24;
    if (panels < 2)
        return disabled(first);
    return upTo(first + (panels - 1) * other - viewHeight(EditorColumn::Inventors) + Margin, first);
}

ScrollBarState objectsBar(int panels, int first, int other) {
    constexpr int DesignedHeight = 81;
    const int rest = (panels - 1) * other + first - viewHeight(EditorColumn::Objects);
    if (panels < 2 || rest <= 0)
        return disabled(DesignedHeight);
    return upTo(rest, 2 * other - first);
}

ScrollBarState figuresBar(int panels, int first) {
    constexpr int LastPanelsPart = 100;
    return panels < 2 ? disabled(first) : upTo((panels - 1) * first - LastPanelsPart, first);
}

/// Two Main Elements fill the view exactly.
ScrollBarState mainElementsBar(int panels, int first) {
    return panels <= 2 ? disabled(first) : upTo((panels - 2) * first, first);
}

ScrollBarState subElementsBar(int panels, int first) {
    constexpr int DesignedHeight = 308;
    constexpr int LastPanelsPart = 68;
    if (panels < 2)
        return disabled(viewHeight(EditorColumn::SubElements));
    return upTo((panels - 1) * first - LastPanelsPart, DesignedHeight);
}

/// Below the panels there are two more parts, so that there is always something to scroll.
ScrollBarState descriptionsBar(const QList<int>& heights) {
    constexpr int OfOnePanel = 420;
    constexpr int PartsAbove = 28;
    constexpr int PartsBelow = 164;
    int sum = 0;
    for (const int height : heights)
        sum += height;
    return upTo(heights.size() == 1 ? OfOnePanel : sum + PartsAbove + PartsBelow,
                heights.first() + 15);
}

} // namespace

ScrollBarState scrollBarFor(EditorColumn column, const QList<int>& heights) {
    Q_ASSERT(!heights.isEmpty());
    const int panels = static_cast<int>(heights.size());
    const int first = heights.first();
    const int other = heights.value(1, first);
    switch (column) {
    case EditorColumn::Inventors:
        return inventorsBar(panels, first, other);
    case EditorColumn::Objects:
        return objectsBar(panels, first, other);
    case EditorColumn::Figures:
        return figuresBar(panels, first);
    case EditorColumn::MainElements:
        return mainElementsBar(panels, first);
    case EditorColumn::SubElements:
        return subElementsBar(panels, first);
    case EditorColumn::Descriptions:
        break;
    }
    return descriptionsBar(heights);
}

int valueAfterNotch(const ScrollBarState& bar, WheelNotch notch) {
    const int step = notch == WheelNotch::Down ? bar.largeChange : -bar.largeChange;
    return std::clamp(bar.value + step, 0, bar.maximum);
}

} // namespace quillford
