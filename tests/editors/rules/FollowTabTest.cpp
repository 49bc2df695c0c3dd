#include "editors/rules/FollowTab.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;

namespace {

/// Panels of these heights, stacked from `top` on.
ColumnPlace stacked(const QList<int>& heights, int top, int pageTop = 0) {
    ColumnPlace place{heights, {}, pageTop};
    for (const int height : heights) {
        place.tops.append(top);
        top += height;
    }
    return place;
}

constexpr std::optional<PanelTarget> Nothing;

} // namespace

TEST(FollowTab, each_column_follows_its_own_fields) {
    EXPECT_EQ(columnFollowing(FieldId::txtZipStep2), EditorColumn::Inventors);
    EXPECT_EQ(columnFollowing(FieldId::chkSameAsContact), EditorColumn::Inventors);
    EXPECT_EQ(columnFollowing(FieldId::txtObject), EditorColumn::Objects);
    EXPECT_EQ(columnFollowing(FieldId::cboFigureType), EditorColumn::Figures);
    EXPECT_EQ(columnFollowing(FieldId::txtFigureDetail), EditorColumn::Figures);
    EXPECT_EQ(columnFollowing(FieldId::txtElementDes), EditorColumn::MainElements);
    EXPECT_EQ(columnFollowing(FieldId::txtElementMain), EditorColumn::SubElements);
    EXPECT_EQ(columnFollowing(FieldId::txtElementSub9), EditorColumn::SubElements);
    EXPECT_EQ(columnFollowing(FieldId::txtMainElementVariations), EditorColumn::Descriptions);
    EXPECT_EQ(columnFollowing(FieldId::txtDesConnections), EditorColumn::Descriptions);
    EXPECT_EQ(columnFollowing(FieldId::txtDesAlterative), EditorColumn::Descriptions);
}

TEST(FollowTab, no_view_follows_the_inventors_lists_counts_paths_and_fields_without_a_column) {
    for (const FieldId field :
         {FieldId::cboStateStep2, FieldId::cboCitizenshipStep2, FieldId::cboInventorsNum,
          FieldId::txtAttachFig, FieldId::txtPurpose, FieldId::txtMainElement,
          FieldId::txtOperation, FieldId::txtFileNo})
        EXPECT_EQ(columnFollowing(field), std::nullopt);
}

TEST(FollowTab, a_field_in_view_moves_nothing) {
    const ColumnPlace inventors = stacked({270, 246}, 0);
    EXPECT_EQ(FollowTab(EditorColumn::Inventors, inventors, {30, 20, 0}), Nothing);
    EXPECT_EQ(FollowTab(EditorColumn::Inventors, inventors, {114, 20, 1}), Nothing);
}

TEST(FollowTab, an_inventor_out_of_view_is_brought_up_with_a_margin) {
    const ColumnPlace inventors = stacked({270, 246, 246}, 0);
    EXPECT_EQ(FollowTab(EditorColumn::Inventors, inventors, {115, 20, 1}),
              PanelTarget(1, false, 135 + 246 + 24 - 404));
    EXPECT_EQ(FollowTab(EditorColumn::Inventors, inventors, {200, 20, 2}),
              PanelTarget(2, false, 220 + 492 + 24 - 404));
}

TEST(FollowTab, a_panel_above_the_view_counts_as_far_away_as_one_below) {
    const ColumnPlace inventors = stacked({270, 246, 246}, -300);
    EXPECT_EQ(FollowTab(EditorColumn::Inventors, inventors, {30, 20, 0}), Nothing);
    EXPECT_EQ(FollowTab(EditorColumn::Inventors, inventors, {115, 20, 0}),
              PanelTarget(0, false, 0));
}

TEST(FollowTab, only_the_first_panel_keeps_a_target_from_being_negative) {
    const ColumnPlace objects = stacked({81, 81, 81}, -290);
    EXPECT_EQ(FollowTab(EditorColumn::Objects, objects, {35, 40, 0}), PanelTarget(0, false, 0));
    EXPECT_EQ(FollowTab(EditorColumn::Objects, stacked({81, 81}, -400), {35, 40, 1}),
              PanelTarget(1, false, 75 + 81 - 316));
}

TEST(FollowTab, objects_are_found_by_the_heights_above_them) {
    const ColumnPlace objects = stacked({94, 81, 107, 81, 81}, 0);
    EXPECT_EQ(FollowTab(EditorColumn::Objects, objects, {32, 40, 2}), Nothing);
    EXPECT_EQ(FollowTab(EditorColumn::Objects, objects, {32, 40, 3}),
              PanelTarget(3, false, 72 + 282 - 316));
}

TEST(FollowTab, an_object_between_the_fitting_constant_and_the_limit_is_in_view) {
    const ColumnPlace objects = stacked({81, 81, 81, 81}, 0);
    EXPECT_EQ(FollowTab(EditorColumn::Objects, objects, {35, 40, 3}), Nothing); // ends at 318
    EXPECT_EQ(FollowTab(EditorColumn::Objects, objects, {35, 41, 3}), PanelTarget(3, false, 3));
}

TEST(FollowTab, figures_and_elements_are_found_by_the_height_of_the_first_panel) {
    EXPECT_EQ(FollowTab(EditorColumn::Figures, stacked({245, 245}, 0), {60, 20, 1}),
              Nothing); // ends at 325
    EXPECT_EQ(FollowTab(EditorColumn::Figures, stacked({245, 245}, 0), {80, 20, 1}),
              PanelTarget(1, false, 1));
    EXPECT_EQ(FollowTab(EditorColumn::MainElements, stacked({139, 139, 139}, 0), {30, 20, 2}),
              PanelTarget(2, false, 50));
    EXPECT_EQ(FollowTab(EditorColumn::SubElements, stacked({308, 308}, 0), {260, 20, 1}),
              PanelTarget(1, false, 280 + 308 - 376));
}

TEST(FollowTab, a_field_that_ends_at_the_lower_edge_of_its_view_is_in_view) {
    const auto moves = [](EditorColumn column, int panelHeight, int end) {
        return FollowTab(column, stacked({panelHeight, panelHeight}, 0), {end - 20, 20, 1})
            .has_value();
    };
    EXPECT_FALSE(moves(EditorColumn::Figures, 245, 344 - 245));
    EXPECT_TRUE(moves(EditorColumn::Figures, 245, 344 - 244));
    EXPECT_FALSE(moves(EditorColumn::MainElements, 139, 278 - 139));
    EXPECT_TRUE(moves(EditorColumn::MainElements, 139, 278 - 138));
    EXPECT_FALSE(moves(EditorColumn::SubElements, 308, 376 - 308));
    EXPECT_TRUE(moves(EditorColumn::SubElements, 308, 376 - 307));
    EXPECT_FALSE(moves(EditorColumn::Inventors, 270, 404 - 270));
    EXPECT_TRUE(moves(EditorColumn::Inventors, 270, 404 - 269));
}

TEST(FollowTab, the_height_of_the_second_inventor_counts_for_all) {
    EXPECT_EQ(FollowTab(EditorColumn::Inventors, stacked({270, 246, 300}, 0), {200, 20, 2}),
              PanelTarget(2, false, 220 + 2 * 246 + 24 - 404));
}

TEST(FollowTab, a_description_is_in_view_while_it_ends_on_the_page_as_it_stands) {
    const QList<int> heights = {224, 224, 224};
    EXPECT_EQ(FollowTab(EditorColumn::Descriptions, stacked(heights, 28), {150, 27, 1}),
              Nothing); // ends at 429
    EXPECT_EQ(FollowTab(EditorColumn::Descriptions, stacked(heights, 28), {150, 28, 1}),
              PanelTarget(1, false, 178 + 224 - 399));
    EXPECT_EQ(FollowTab(EditorColumn::Descriptions, stacked(heights, 28, -400), {150, 28, 1}),
              Nothing);
    EXPECT_EQ(FollowTab(EditorColumn::Descriptions, stacked(heights, 28, -430), {150, 28, 1}),
              Nothing);
    EXPECT_EQ(FollowTab(EditorColumn::Descriptions, stacked(heights, 28, -431), {150, 28, 1}),
              PanelTarget(1, false, 3));
    EXPECT_EQ(FollowTab(EditorColumn::Descriptions, stacked(heights, 28, -431), {45, 60, 0}),
              PanelTarget(0, false, 0));
}

TEST(FollowTab, the_connections_are_found_below_all_panels) {
    const ColumnPlace page = stacked({224, 224}, 28);
    EXPECT_EQ(FollowTabToConnections(page, {60, 100, 0}, 511),
              PanelTarget(0, false, 160 + 448 - 368));
    EXPECT_EQ(FollowTabToConnections(page, {60, 100, 0}, 269), Nothing);
    EXPECT_NE(FollowTabToConnections(page, {60, 100, 0}, 270), Nothing);
}

TEST(FollowTab, the_alternative_goes_to_the_end_behind_the_last_panel) {
    const ColumnPlace page = stacked({224, 224}, 28);
    EXPECT_EQ(FollowTabToAlternative(page, 0), Nothing);
    EXPECT_EQ(FollowTabToAlternative(page, 1), PanelTarget(2, true, 0));
    EXPECT_EQ(FollowTabToAlternative(stacked({224}, 28), 0), PanelTarget(1, true, 0));
}
