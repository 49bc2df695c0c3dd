#include "editors/rules/ScrollColumn.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;

namespace {

ScrollColumn laidOut(EditorColumn column, const QList<int>& heights, int value = 0) {
    ScrollColumn scroll(column);
    scroll.layOut(heights);
    scroll.vscroll_Change(value);
    return scroll;
}

/// The value of the bar after a call of `ScrollPanelTo`, from 7.
int valueAfter(EditorColumn column, int row, bool atEnd, int position) {
    ScrollColumn scroll = laidOut(column, QList<int>(8, 300), 7);
    scroll.ScrollPanelTo(row, atEnd, position);
    return scroll.bar().value;
}

} // namespace

TEST(ScrollColumn, each_panel_stands_at_the_bottom_of_the_one_before) {
    EXPECT_EQ(laidOut(EditorColumn::Objects, {94, 81, 107, 81}).place().tops,
              QList<int>({0, 94, 175, 282}));
}

TEST(ScrollColumn, a_scroll_takes_the_panels_along) {
    EXPECT_EQ(laidOut(EditorColumn::Inventors, {270, 246, 246}, 100).place().tops,
              QList<int>({-100, 170, 416}));
}

TEST(ScrollColumn, the_descriptions_stand_still_on_a_page_that_moves) {
    const ScrollColumn page = laidOut(EditorColumn::Descriptions, {224, 250, 224}, 300);
    EXPECT_EQ(page.place().pageTop, -300);
    EXPECT_EQ(page.place().tops, QList<int>({28, 252, 502}));
}

TEST(ScrollColumn, no_other_column_has_a_page_that_moves) {
    for (const auto column : {EditorColumn::Inventors, EditorColumn::Objects, EditorColumn::Figures,
                              EditorColumn::MainElements, EditorColumn::SubElements})
        EXPECT_EQ(laidOut(column, {300, 300, 300}, 50).place().pageTop, 0);
}

TEST(ScrollColumn, a_layout_goes_to_the_top) {
    ScrollColumn scroll = laidOut(EditorColumn::Figures, {245, 245, 245}, 200);
    scroll.layOut({245, 245, 245});
    EXPECT_EQ(scroll.bar().value, 0);
    EXPECT_EQ(scroll.place().tops.first(), 0);
}

TEST(ScrollColumn, a_reflow_keeps_the_place_as_far_as_the_range_allows) {
    ScrollColumn scroll = laidOut(EditorColumn::Objects, {94, 94, 94, 94}, 52);
    EXPECT_EQ(scroll.bar().value, 52);
    scroll.reflow({94, 94, 94, 94, 94});
    EXPECT_EQ(scroll.bar().value, 52);
    EXPECT_EQ(scroll.place().tops, QList<int>({-52, 42, 136, 230, 324}));
    scroll.reflow({81, 81, 81, 81});
    EXPECT_EQ(scroll.bar().value, 0);
    EXPECT_EQ(scroll.place().tops.first(), 0);
}

TEST(ScrollColumn, a_grown_panel_pushes_the_next_ones_down) {
    ScrollColumn scroll = laidOut(EditorColumn::Descriptions, {224, 224, 224}, 10);
    scroll.reflow({224, 237, 224});
    EXPECT_EQ(scroll.place().tops, QList<int>({28, 252, 489}));
    EXPECT_EQ(scroll.bar().maximum, 685 + 192);
    EXPECT_EQ(scroll.bar().value, 10);
}

TEST(ScrollColumn, a_value_beyond_the_ends_counts_as_the_end) {
    ScrollColumn scroll = laidOut(EditorColumn::Inventors, {270, 246});
    scroll.vscroll_Change(500);
    EXPECT_EQ(scroll.bar().value, 110);
    scroll.vscroll_Change(-1);
    EXPECT_EQ(scroll.bar().value, 0);
}

TEST(ScrollColumn, ScrollPanelTo_leaves_a_disabled_bar_alone) {
    ScrollColumn scroll = laidOut(EditorColumn::Inventors, {270});
    scroll.ScrollPanelTo(1, true, 50);
    EXPECT_EQ(scroll.bar().value, 0);
}

TEST(ScrollColumn, ScrollPanelTo_keeps_the_first_three_objects_at_the_top) {
    EXPECT_EQ(valueAfter(EditorColumn::Objects, 2, false, 90), 0);
    EXPECT_EQ(valueAfter(EditorColumn::Objects, 2, true, 90), 0);
    EXPECT_EQ(valueAfter(EditorColumn::Objects, 3, false, 90), 90);
    EXPECT_EQ(valueAfter(EditorColumn::Objects, 3, true, 0), 0);
}

TEST(ScrollColumn, ScrollPanelTo_keeps_the_first_figure_and_the_first_block_at_the_top) {
    for (const auto column : {EditorColumn::Figures, EditorColumn::SubElements}) {
        EXPECT_EQ(valueAfter(column, 0, false, 90), 0);
        EXPECT_EQ(valueAfter(column, 1, false, 90), 90);
        EXPECT_EQ(valueAfter(column, 1, true, 90), 90);
        EXPECT_EQ(valueAfter(column, 7, false, 9999),
                  scrollBarFor(column, QList<int>(8, 300)).maximum);
    }
}

TEST(ScrollColumn, ScrollPanelTo_knows_an_end_of_the_other_columns) {
    for (const auto column :
         {EditorColumn::Inventors, EditorColumn::MainElements, EditorColumn::Descriptions}) {
        EXPECT_EQ(valueAfter(column, 0, false, 90), 90);
        EXPECT_EQ(valueAfter(column, 5, false, 90), 90);
        EXPECT_EQ(valueAfter(column, 0, true, 90), 0);
        EXPECT_EQ(valueAfter(column, 1, true, 90),
                  scrollBarFor(column, QList<int>(8, 300)).maximum);
    }
}

TEST(ScrollColumn, the_tab_key_brings_a_field_to_the_lower_edge_of_the_view) {
    ScrollColumn scroll = laidOut(EditorColumn::MainElements, {139, 139, 139});
    const FocusedControl name{30, 20, 2};
    const auto target = FollowTab(scroll.column(), scroll.place(), name);
    ASSERT_TRUE(target);
    scroll.ScrollPanelTo(*target);
    EXPECT_EQ(scroll.place().tops.at(2) + name.top + name.height,
              viewHeight(EditorColumn::MainElements));
    EXPECT_EQ(FollowTab(scroll.column(), scroll.place(), name), std::nullopt);
}
