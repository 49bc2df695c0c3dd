#include "draft/language/Capitals.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

TEST(Capitals, a_first_letter_is_raised_and_the_rest_stands) {
    EXPECT_EQ(upperFirstLetter(u"a PIN of steel"), u"A PIN of steel"_s);
    EXPECT_EQ(upperFirstLetter(u"McAdam"), u"McAdam"_s);
    EXPECT_EQ(upperFirstLetter(u" a"), u" a"_s);
    EXPECT_EQ(upperFirstLetter(u"<br>a"), u"<br>a"_s);
    EXPECT_EQ(upperFirstLetter(u"\u00E9tui"), u"\u00C9tui"_s);
}

TEST(Capitals, a_text_shorter_than_two_characters_is_wholly_upper_case) {
    EXPECT_EQ(upperFirstLetter(u""), u""_s);
    EXPECT_EQ(upperFirstLetter(u"a"), u"A"_s);
    EXPECT_EQ(upperFirstLetter(u"\t"), u"\t"_s);
}

TEST(Capitals, a_proper_word_is_lower_case_behind_its_first_letter) {
    EXPECT_EQ(properCaseWord(u"gEAR"), u"Gear"_s);
    EXPECT_EQ(properCaseWord(u"McAdam"), u"Mcadam"_s);
    EXPECT_EQ(properCaseWord(u"o'NEIL-SMITH"), u"O'neil-smith"_s);
    EXPECT_EQ(properCaseWord(u"3D"), u"3d"_s);
    EXPECT_EQ(properCaseWord(u"j"), u"J"_s);
    EXPECT_EQ(properCaseWord(u""), u""_s);
}

TEST(Capitals, a_proper_word_knows_no_blank_within_it) {
    EXPECT_EQ(properCaseWord(u"GEAR BOX"), u"Gear box"_s);
}

TEST(Capitals, proper_words_keep_the_two_blanks_between_them) {
    EXPECT_EQ(properCaseWords(u"JOHN  smith"), u"John  Smith"_s);
}

TEST(Capitals, proper_words_keep_blanks_at_both_ends) {
    EXPECT_EQ(properCaseWords(u"  aB c "), u"  Ab C "_s);
    EXPECT_EQ(properCaseWords(u"   "), u"   "_s);
    EXPECT_EQ(properCaseWords(u" "), u" "_s);
    EXPECT_EQ(properCaseWords(u""), u""_s);
}

TEST(Capitals, proper_words_are_divided_by_blanks_alone) {
    EXPECT_EQ(properCaseWords(u"GEAR\tBOX a\r\nB"), u"Gear\tbox A\r\nb"_s);
    EXPECT_EQ(properCaseWords(u"snap-FIT"), u"Snap-fit"_s);
    EXPECT_EQ(properCaseWords(u"GEAR\u00A0BOX"), u"Gear\u00A0box"_s);
}

TEST(Capitals, there_is_no_small_word_among_proper_words) {
    EXPECT_EQ(properCaseWords(u"gear of pin"), u"Gear Of Pin"_s);
}

TEST(Capitals, an_article_becomes_a_proper_word) {
    EXPECT_EQ(properCaseWords(u"an"), u"An"_s);
    EXPECT_EQ(properCaseWords(u"a"), u"A"_s);
}

TEST(Capitals, a_sharp_s_keeps_its_length) {
    EXPECT_EQ(upperFirstLetter(u"\u00DFa"), u"\u00DFa"_s);
    EXPECT_EQ(upperFirstLetter(u"\u00DF"), u"\u00DF"_s);
    EXPECT_EQ(properCaseWord(u"STRA\u00DFE"), u"Stra\u00DFe"_s);
    EXPECT_EQ(properCaseWords(u"\u00DF \u00DFA"), u"\u00DF \u00DFa"_s);
}

TEST(Capitals, surrogates_stand_untouched_paired_or_not) {
    const QString pair = u"\U00010428"_s;
    for (const QString& text :
         {pair, pair + u"x"_s, QString(QChar(0xD801)), QString(QChar(0xDC28)), u"X\xD801"_s}) {
        EXPECT_EQ(upperFirstLetter(text), text);
        EXPECT_EQ(properCaseWord(text), text);
        EXPECT_EQ(properCaseWords(text), text);
    }
}

TEST(Capitals, the_five_small_words_are_small_in_any_case) {
    for (const QString& word :
         {u"in"_s, u"at"_s, u"on"_s, u"of"_s, u"for"_s, u"OF"_s, u"For"_s, u"iN"_s})
        EXPECT_TRUE(isSmallWord(word)) << word.toStdString();
}

TEST(Capitals, no_other_word_is_small) {
    for (const QString& word : {u""_s, u"a"_s, u"the"_s, u"and"_s, u"off"_s, u"fo"_s, u" of"_s,
                                u"of "_s, u"of\t"_s, u"o"_s, u"in,"_s})
        EXPECT_FALSE(isSmallWord(word)) << word.toStdString();
}

TEST(Capitals, a_text_of_half_a_million_blanks_keeps_its_length) {
    const QString text = u"a "_s.repeated(500'000);
    EXPECT_EQ(properCaseWords(text), u"A "_s.repeated(500'000));
    const QString blanks(1'000'000, u' ');
    EXPECT_EQ(properCaseWords(blanks), blanks);
}

TEST(Capitals, an_entry_of_the_index_keeps_its_small_words_as_typed) {
    EXPECT_EQ(properCaseIndexEntry(u"LEG OF the easel  for ART"), u"Leg OF The Easel  for Art"_s);
    EXPECT_EQ(properCaseIndexEntry(u""), u""_s);
}
