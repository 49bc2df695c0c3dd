#include "editors/rules/DescriptionFlow.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;

namespace {

constexpr int ConnectionsHeight = 178;

} // namespace

TEST(DescriptionFlow, questions_of_designed_height_leave_everything_in_its_place) {
    EXPECT_EQ(descriptionPanelPlaces(13, 26), DescriptionPanelPlaces(45, 118, 150, 210, 224));
}

TEST(DescriptionFlow, a_line_more_in_the_first_question_moves_everything_below_it) {
    EXPECT_EQ(descriptionPanelPlaces(26, 26), DescriptionPanelPlaces(58, 131, 163, 223, 237));
}

TEST(DescriptionFlow, a_line_more_in_the_second_question_moves_its_box_alone) {
    EXPECT_EQ(descriptionPanelPlaces(13, 39), DescriptionPanelPlaces(45, 118, 163, 223, 237));
    EXPECT_EQ(descriptionPanelPlaces(13, 13), DescriptionPanelPlaces(45, 118, 137, 197, 211));
}

TEST(DescriptionFlow, below_one_panel_the_parts_follow_with_steps_of_their_own) {
    EXPECT_EQ(partsBelowOnePanel(224, ConnectionsHeight),
              DescriptionParts(265, 286, 286 + 178 + 13, 286 + 178 + 13 + 20, 852));
    EXPECT_EQ(partsBelowOnePanel(237, ConnectionsHeight),
              DescriptionParts(278, 299, 490, 510, 852));
}

TEST(DescriptionFlow, below_several_panels_the_steps_are_shorter) {
    // 224 + 237 + 28 above the panels
    EXPECT_EQ(partsBelowPanels({224, 237}, ConnectionsHeight),
              DescriptionParts(489 + 15, 489 + 15 + 20, 524 + 178 + 11, 713 + 17, 489 + 852));
}

TEST(DescriptionFlow, a_line_more_in_a_panel_moves_all_parts_by_a_line) {
    const DescriptionParts before = partsBelowPanels({224, 224, 224}, ConnectionsHeight);
    const DescriptionParts after = partsBelowPanels({224, 237, 224}, ConnectionsHeight);
    EXPECT_EQ(after.connectionsHeadingTop, before.connectionsHeadingTop + 13);
    EXPECT_EQ(after.connectionsTop, before.connectionsTop + 13);
    EXPECT_EQ(after.alternativeHeadingTop, before.alternativeHeadingTop + 13);
    EXPECT_EQ(after.alternativeTop, before.alternativeTop + 13);
    EXPECT_EQ(after.pageHeight, before.pageHeight + 13);
}

TEST(DescriptionFlow, a_reflow_of_one_panel_keeps_the_third_part_at_its_designed_place) {
    EXPECT_EQ(partsBelowPanels({224}, ConnectionsHeight),
              DescriptionParts(267, 287, 477, 493, 852));
}
