#include "editors/rules/FigureSentence.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

TEST(FigureSentence, captions_count_figures_from_1) {
    EXPECT_EQ(figureCaption(0), u"Figure 1"_s);
    EXPECT_EQ(attachFigureCaption(9), u"Attach Figure 10 Image File"_s);
    EXPECT_EQ(figureDetailCaption(49), u"Detailed Description of Figure 50"_s);
}

TEST(FigureSentence, the_view_chooses_the_article) {
    EXPECT_EQ(figureSentence(1, u"upper perspective view"_s), u"Figure 2 is an"_s);
    EXPECT_EQ(figureSentence(1, u"front view"_s), u"Figure 2 is a"_s);
}

TEST(FigureSentence, a_view_typed_by_hand_counts_without_its_blanks_and_in_either_case) {
    EXPECT_EQ(figureSentence(0, u"  Exploded view"_s), u"Figure 1 is an"_s);
    EXPECT_EQ(figureSentence(0, u""_s), u"Figure 1 is a"_s);
}

TEST(FigureSentence, a_heading_begins_with_no_vowel) {
    EXPECT_EQ(figureSentence(0, u"--- 2 Dimensional Views ---"_s), u"Figure 1 is a"_s);
    EXPECT_EQ(figureSentence(0, u"SELECT A VIEW"_s), u"Figure 1 is a"_s);
}

TEST(FigureSentence, the_view_stands_behind_the_label) {
    EXPECT_EQ(figureTypeLeft(8, 71), 85);
}

TEST(FigurePreview, a_small_picture_is_centred_as_it_is) {
    EXPECT_EQ(figurePreviewPlace({100, 60}), QRect(14, 34, 100, 60));
    EXPECT_EQ(figurePreviewPlace({128, 128}), QRect(0, 0, 128, 128));
    EXPECT_EQ(figurePreviewPlace({1, 1}), QRect(63, 63, 1, 1));
}

TEST(FigurePreview, a_picture_too_large_fills_the_square_along_its_longer_side) {
    EXPECT_EQ(figurePreviewPlace({800, 600}), QRect(0, 16, 128, 96));
    EXPECT_EQ(figurePreviewPlace({600, 800}), QRect(16, 0, 96, 128));
    EXPECT_EQ(figurePreviewPlace({500, 500}), QRect(0, 0, 128, 128));
}

TEST(FigurePreview, a_picture_too_large_one_way_only_keeps_its_shape) {
    EXPECT_EQ(figurePreviewPlace({256, 50}), QRect(0, 51, 128, 25));
    EXPECT_EQ(figurePreviewPlace({50, 256}), QRect(51, 0, 25, 128));
}

TEST(FigurePreview, halves_are_rounded_to_even) {
    EXPECT_EQ(figurePreviewPlace({256, 5}).height(), 2); // 2.5
    EXPECT_EQ(figurePreviewPlace({7, 256}).width(), 4);  // 3.5
}
