#include "editors/rules/ElementCaptions.h"

#include "core/rules/ReferenceNumerals.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

TEST(ElementCaptions, the_fifteenth_element_has_its_ordinal_and_150_to_159) {
    EXPECT_EQ(mainElementCaption(14), u"Fifteenth Main Element"_s);
    EXPECT_EQ(referenceLabel(14), u"150:"_s);
    EXPECT_EQ(referenceLabel(14, 1), u"151:"_s);
    EXPECT_EQ(referenceLabel(14, 9), u"159:"_s);
}

TEST(ElementCaptions, each_caption_names_its_element) {
    EXPECT_EQ(mainElementCaption(0), u"First Main Element"_s);
    EXPECT_EQ(referenceNumberCaption(1), u"Second Main Element (and Reference Number)"_s);
    EXPECT_EQ(subElementsCaption(2), u"Sub-Elements for the Third Main Element"_s);
}

TEST(ElementCaptions, the_first_description_keeps_its_designed_lower_case) {
    EXPECT_EQ(elementDescriptionCaption(0),
              u"Describe the structure and function of the First Main Element"_s);
    EXPECT_EQ(elementDescriptionCaption(1),
              u"Describe the Structure and Function of the Second Main Element"_s);
}

TEST(ElementCaptions, the_star_of_a_description_stands_2_behind_its_label) {
    EXPECT_EQ(elementDescriptionStarLeft(8, 300), 310);
}

TEST(ElementCaptions, the_tenth_elements_star_stands_2_further_right) {
    EXPECT_EQ(mainElementStarLeft(0), 32);
    EXPECT_EQ(mainElementStarLeft(8), 32);
    EXPECT_EQ(mainElementStarLeft(9), 34);
    EXPECT_EQ(mainElementStarLeft(14), 34);
}

TEST(ElementCaptions, the_reminder_has_no_blank_behind_its_colon) {
    EXPECT_EQ(labelElementsReminder(),
              u"REMINDER:Make sure to label each of the Main Elements and Sub-Elements within the "
              u"figures you prepared in Step 4."_s);
}
