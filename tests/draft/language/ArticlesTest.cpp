#include "draft/language/Articles.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

TEST(Articles, an_empty_text_takes_a) {
    EXPECT_EQ(isVowelInitial(u""), u"a"_s);
    EXPECT_EQ(isVowelInitial({}), u"a"_s);
}

TEST(Articles, a_word_that_begins_with_a_vowel_takes_an) {
    EXPECT_EQ(isVowelInitial(u"Umbrella"), u"an"_s);
}

TEST(Articles, a_digit_takes_a) {
    EXPECT_EQ(isVowelInitial(u"1st"), u"a"_s);
    EXPECT_EQ(isVowelInitial(u"8 sided box"), u"a"_s);
}

TEST(Articles, each_of_the_five_vowels_in_either_case_takes_an) {
    for (const QString& text : {u"A"_s, u"E"_s, u"I"_s, u"O"_s, u"U"_s, u"a"_s, u"easel"_s,
                                u"iron"_s, u"oven"_s, u"umbrella"_s})
        EXPECT_EQ(isVowelInitial(text), u"an"_s) << text.toStdString();
}

TEST(Articles, the_sound_of_a_word_plays_no_part) {
    EXPECT_EQ(isVowelInitial(u"hour"), u"a"_s);
    EXPECT_EQ(isVowelInitial(u"unit"), u"an"_s);
    EXPECT_EQ(isVowelInitial(u"yttrium"), u"a"_s);
}

TEST(Articles, only_the_first_character_is_looked_at) {
    EXPECT_EQ(isVowelInitial(u" umbrella"), u"a"_s);
    EXPECT_EQ(isVowelInitial(u"\"easel\""), u"a"_s);
    EXPECT_EQ(isVowelInitial(u"\u00C9tui"), u"a"_s);
    EXPECT_EQ(isVowelInitial(u"\U0001F600a"), u"a"_s);
    EXPECT_EQ(isVowelInitial(u"\xDC00"_s), u"a"_s);
}

TEST(Articles, six_countries_take_the) {
    for (const QString& country :
         {u"United States"_s, u"United Arab Emirates"_s, u"Czech Republic"_s, u"Netherlands"_s,
          u"Philippines"_s, u"Syrian Arab Republic"_s})
        EXPECT_EQ(citizenshipText(country), u"the "_s + country);
}

TEST(Articles, one_of_the_six_countries_is_spelt_as_in_the_list) {
    EXPECT_EQ(citizenshipText(u"UNITED states"), u"the United States"_s);
    EXPECT_EQ(citizenshipText(u" syrian arab republic "), u"the Syrian Arab Republic"_s);
}

TEST(Articles, any_other_country_keeps_the_case_in_which_it_was_typed) {
    EXPECT_EQ(citizenshipText(u"canada"), u"canada"_s);
    EXPECT_EQ(citizenshipText(u"SOUTH africa"), u"SOUTH africa"_s);
}

TEST(Articles, a_country_loses_its_outer_blanks_alone) {
    EXPECT_EQ(citizenshipText(u"  Netherlands "), u"the Netherlands"_s);
    EXPECT_EQ(citizenshipText(u" Canada  "), u"Canada"_s);
    EXPECT_EQ(citizenshipText(u"\tNetherlands"), u"\tNetherlands"_s);
}

TEST(Articles, any_other_country_stands_alone) {
    for (const QString& country :
         {u"Canada"_s, u"United Kingdom"_s, u"Bahamas"_s, u"The Netherlands"_s, u"United  States"_s,
          u"United States of America"_s, u"Netherland"_s, u""_s})
        EXPECT_EQ(citizenshipText(country), country);
}

TEST(Articles, a_blank_country_is_empty) {
    EXPECT_EQ(citizenshipText(u"   "), u""_s);
}
