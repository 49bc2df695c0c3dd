#include "editors/rules/ScrollBarState.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;

namespace {

/// A column of this many panels of one height under a first panel of its own height.
QList<int> panels(int count, int first, int other) {
    QList<int> heights(count, other);
    heights.first() = first;
    return heights;
}

ScrollBarState bar(EditorColumn column, int count, int first, int other) {
    return scrollBarFor(column, panels(count, first, other));
}

constexpr ScrollBarState on(int maximum, int largeChange) {
    return {true, 0, maximum, largeChange};
}

constexpr ScrollBarState off(int largeChange) {
    return {false, 0, 0, largeChange};
}

} // namespace

TEST(ScrollBarState, one_inventor_fits_and_two_scroll_by_110) {
    EXPECT_EQ(bar(EditorColumn::Inventors, 1, 270, 270), off(270));
    EXPECT_EQ(bar(EditorColumn::Inventors, 2, 270, 246), on(110, 270));
    EXPECT_EQ(bar(EditorColumn::Inventors, 3, 270, 246), on(356, 270));
    EXPECT_EQ(bar(EditorColumn::Inventors, 8, 270, 246), on(1586, 270));
}

TEST(ScrollBarState, four_designed_objects_fit_exactly) {
    EXPECT_EQ(bar(EditorColumn::Objects, 1, 81, 81), off(81));
    EXPECT_EQ(bar(EditorColumn::Objects, 4, 81, 81), off(81));
    EXPECT_EQ(bar(EditorColumn::Objects, 5, 81, 81), on(81, 81));
    EXPECT_EQ(bar(EditorColumn::Objects, 20, 81, 81), on(1296, 81));
}

TEST(ScrollBarState, one_object_never_scrolls_however_tall) {
    EXPECT_EQ(bar(EditorColumn::Objects, 1, 400, 400), off(81));
}

TEST(ScrollBarState, two_tall_objects_scroll_from_the_first_pixel_that_does_not_fit) {
    EXPECT_EQ(bar(EditorColumn::Objects, 2, 162, 162), off(81));
    EXPECT_EQ(bar(EditorColumn::Objects, 2, 163, 162), on(1, 161));
}

TEST(ScrollBarState, the_height_of_the_second_object_counts_for_all_further_ones) {
    EXPECT_EQ(scrollBarFor(EditorColumn::Objects, {94, 81, 107, 107}), on(13, 68));
    EXPECT_EQ(scrollBarFor(EditorColumn::Objects, {81, 94, 81, 81}), on(39, 107));
}

TEST(ScrollBarState, figures_scroll_from_the_second_one) {
    EXPECT_EQ(bar(EditorColumn::Figures, 1, 245, 245), off(245));
    EXPECT_EQ(bar(EditorColumn::Figures, 2, 245, 245), on(145, 245));
    EXPECT_EQ(bar(EditorColumn::Figures, 50, 245, 245), on(11905, 245));
}

TEST(ScrollBarState, main_elements_scroll_from_the_third_one) {
    EXPECT_EQ(bar(EditorColumn::MainElements, 1, 139, 139), off(139));
    EXPECT_EQ(bar(EditorColumn::MainElements, 2, 139, 139), off(139));
    EXPECT_EQ(bar(EditorColumn::MainElements, 3, 139, 139), on(139, 139));
    EXPECT_EQ(bar(EditorColumn::MainElements, 15, 139, 139), on(1807, 139));
}

TEST(ScrollBarState, sub_elements_scroll_from_the_second_one) {
    EXPECT_EQ(bar(EditorColumn::SubElements, 1, 308, 308), off(376));
    EXPECT_EQ(bar(EditorColumn::SubElements, 2, 308, 308), on(240, 308));
    EXPECT_EQ(bar(EditorColumn::SubElements, 15, 308, 308), on(4244, 308));
}

TEST(ScrollBarState, descriptions_always_scroll) {
    EXPECT_EQ(scrollBarFor(EditorColumn::Descriptions, {224}), on(420, 239));
    EXPECT_EQ(scrollBarFor(EditorColumn::Descriptions, {224, 237}), on(653, 239));
    EXPECT_EQ(scrollBarFor(EditorColumn::Descriptions, {250, 224, 224}), on(890, 265));
}

TEST(ScrollBarState, one_tall_description_still_scrolls_by_420) {
    EXPECT_EQ(scrollBarFor(EditorColumn::Descriptions, {263}), on(420, 278));
}

TEST(ScrollBarState, a_notch_of_the_wheel_is_a_large_change) {
    EXPECT_EQ(valueAfterNotch({true, 100, 1000, 270}, WheelNotch::Down), 370);
    EXPECT_EQ(valueAfterNotch({true, 370, 1000, 270}, WheelNotch::Up), 100);
}

TEST(ScrollBarState, a_notch_stops_at_the_ends_of_the_bar) {
    EXPECT_EQ(valueAfterNotch({true, 731, 1000, 270}, WheelNotch::Down), 1000);
    EXPECT_EQ(valueAfterNotch({true, 730, 1000, 270}, WheelNotch::Down), 1000);
    EXPECT_EQ(valueAfterNotch({true, 1000, 1000, 270}, WheelNotch::Down), 1000);
    EXPECT_EQ(valueAfterNotch({true, 269, 1000, 270}, WheelNotch::Up), 0);
    EXPECT_EQ(valueAfterNotch({true, 0, 1000, 270}, WheelNotch::Up), 0);
}

TEST(ScrollBarState, a_notch_moves_no_bar_that_is_disabled) {
    EXPECT_EQ(valueAfterNotch(bar(EditorColumn::Inventors, 1, 270, 270), WheelNotch::Down), 0);
}
