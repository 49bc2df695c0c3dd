#include "base/Text.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>
#include <limits>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

TEST(Text, trims_blanks_and_nothing_else) {
    EXPECT_EQ(trimBlanks(u"  a b  "), u"a b");
    EXPECT_EQ(trimBlanks(u" \t a\r\n "), u"\t a\r\n");
    EXPECT_EQ(trimBlanks(u"\u00A0a\u00A0"), u"\u00A0a\u00A0");
    EXPECT_EQ(trimBlanks(u"   "), u"");
    EXPECT_EQ(trimBlanks(u""), u"");
}

TEST(Text, counts_blanks_alone_as_blank) {
    EXPECT_TRUE(isBlank(u""));
    EXPECT_TRUE(isBlank(u"   "));
    EXPECT_FALSE(isBlank(u" \t "));
    EXPECT_FALSE(isBlank(u"\r\n"));
}

TEST(Text, changes_case_without_changing_the_length) {
    EXPECT_EQ(upperCase(u"stra\u00DFe 9 \u00E9"), u"STRA\u00DFE 9 \u00C9"_s);
    EXPECT_EQ(lowerCase(u"\u0130X").size(), 2);
    EXPECT_EQ(upperCase(u"\uFB01x"), u"\uFB01X"_s);
}

TEST(Text, leaves_surrogates_alone_paired_or_not) {
    const QString deseret = u"\U00010428\xD800"_s;
    EXPECT_EQ(upperCase(deseret), deseret);
    EXPECT_EQ(lowerCase(deseret), deseret);
}

TEST(Text, reads_the_number_with_which_a_text_begins) {
    EXPECT_EQ(numberIn(u"15"), 15);
    EXPECT_EQ(numberIn(u"  7 of them"), 7);
    EXPECT_EQ(numberIn(u"-3"), -3);
    EXPECT_EQ(numberIn(u"+3"), 3);
    EXPECT_EQ(numberIn(u""), 0);
    EXPECT_EQ(numberIn(u"many"), 0);
}

TEST(Text, bounds_a_number_that_is_too_large) {
    EXPECT_EQ(numberIn(u"99999999999999999999999999"), std::numeric_limits<int>::max());
    EXPECT_EQ(numberIn(u"-99999999999999999999999999"), -std::numeric_limits<int>::max());
}
