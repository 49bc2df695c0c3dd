#include "editors/rules/DescriptionCaptions.h"

#include "support/FakeTextMeasure.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// A font so narrow that every question fits.
class NarrowMeasure final : public TextMeasure {
public:
    [[nodiscard]] double width(QStringView text, TextWeight) const override {
        return static_cast<double>(text.size());
    }

    [[nodiscard]] int lineHeight() const override { return 13; }
};

class DescriptionCaptions : public testing::Test {
protected:
    NarrowMeasure narrow;
    FakeTextMeasure wide; // 10 pixels a character
};

} // namespace

TEST_F(DescriptionCaptions, a_panel_bears_the_name_in_proper_case) {
    EXPECT_EQ(descriptionFrameCaption(0, 3, u"  upper HINGE "_s, narrow),
              u"Upper Hinge (1 of 3 Main Elements)"_s);
}

TEST_F(DescriptionCaptions, a_blank_name_leaves_a_placeholder) {
    EXPECT_EQ(descriptionFrameCaption(1, 3, u"  "_s, narrow),
              u"[Main Element Name 2] (2 of 3 Main Elements)"_s);
    EXPECT_EQ(detailQuestion(1, u" "_s, narrow),
              u"Detailed Description of the [MAIN ELEMENT 2 NAME]"_s);
    EXPECT_EQ(variationsQuestion(14, u""_s, narrow),
              u"Describe All Possible Structural and Functional Variations of the "
              u"[MAIN ELEMENT 15 NAME]"_s);
}

TEST_F(DescriptionCaptions, a_placeholder_is_never_cut) {
    EXPECT_EQ(detailQuestion(0, u""_s, wide),
              u"Detailed Description of the [MAIN ELEMENT 1 NAME]"_s);
}

TEST_F(DescriptionCaptions, a_question_quotes_the_name_in_proper_case) {
    EXPECT_EQ(detailQuestion(0, u" folding LEG "_s, narrow),
              u"Detailed Description of the Folding Leg"_s);
    EXPECT_EQ(variationsQuestion(0, u"folding LEG"_s, narrow),
              u"Describe All Possible Structural and Functional Variations of the Folding Leg"_s);
}

TEST_F(DescriptionCaptions, a_long_name_ends_in_dots_on_the_frame_at_200) {
    EXPECT_EQ(descriptionFrameCaption(0, 1, u"adjustable supporting leg"_s, wide),
              u"Adjustable Supportin... (1 of 1 Main Elements)"_s);
    EXPECT_EQ(descriptionFrameCaption(0, 1, u"nineteen characters"_s, wide),
              u"Nineteen Characters (1 of 1 Main Elements)"_s);
}

TEST_F(DescriptionCaptions, questions_end_in_dots_at_315_and_330) {
    EXPECT_EQ(detailQuestion(0, u"hinge"_s, wide), u"Detailed Description of the Hin..."_s);
    EXPECT_EQ(variationsQuestion(0, u"hinge"_s, wide),
              u"Describe All Possible Structural..."_s); // 33 characters, a blank the last
}

TEST_F(DescriptionCaptions, a_caption_one_pixel_narrower_than_its_limit_stays_whole) {
    const auto isCut = [](const QString& caption) { return caption.contains(u"..."_s); };
    const auto name = [](int width, const QString& about) {
        return QString(width - about.size(), u'x');
    };
    const QString detail = u"Detailed Description of the "_s;
    const QString variations =
        u"Describe All Possible Structural and Functional Variations of the "_s;
    EXPECT_FALSE(isCut(descriptionFrameCaption(0, 1, name(199, {}), narrow)));
    EXPECT_TRUE(isCut(descriptionFrameCaption(0, 1, name(200, {}), narrow)));
    EXPECT_FALSE(isCut(detailQuestion(0, name(314, detail), narrow)));
    EXPECT_TRUE(isCut(detailQuestion(0, name(315, detail), narrow)));
    EXPECT_FALSE(isCut(variationsQuestion(0, name(329, variations), narrow)));
    EXPECT_TRUE(isCut(variationsQuestion(0, name(330, variations), narrow)));
}

TEST_F(DescriptionCaptions, the_star_stands_two_blanks_behind_the_question) {
    EXPECT_EQ(detailQuestionStar(u"Detailed Description of the Hinge"_s),
              u"Detailed Description of the Hinge  *"_s);
}
