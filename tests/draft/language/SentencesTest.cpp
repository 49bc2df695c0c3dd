#include "draft/language/Sentences.h"

#include "draft/language/Capitals.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

struct Sentence {
    QString text;
    QString result;
};

void expectSentences(std::initializer_list<Sentence> rows) {
    for (const Sentence& row : rows)
        EXPECT_EQ(capitalizeSentences(row.text), row.result) << "of " << row.text.toStdString();
}

} // namespace

TEST(Sentences, every_period_ends_one) {
    expectSentences({{u"3.5"_s, u"3. 5. "_s},
                     {u"e.g. a pin"_s, u"E. G. A pin. "_s},
                     {u"a pin of 3.5 mm"_s, u"A pin of 3. 5 mm. "_s},
                     {u"see fig.2.the lid"_s, u"See fig. 2. The lid. "_s},
                     {u".5"_s, u"5. "_s}});
}

TEST(Sentences, a_text_that_ends_in_a_period_ends_in_a_period_and_one_blank) {
    expectSentences(
        {{u"A pin."_s, u"A pin. "_s}, {u"A pin. "_s, u"A pin. "_s}, {u"A pin..."_s, u"A pin. "_s}});
}

TEST(Sentences, a_text_without_a_period_is_given_one) {
    expectSentences({{u"a pin"_s, u"A pin. "_s}, {u"a"_s, u"A. "_s}});
}

TEST(Sentences, pieces_without_text_drop_out) {
    expectSentences({{u""_s, u""_s},
                     {u"."_s, u""_s},
                     {u"....."_s, u""_s},
                     {u" .  . "_s, u""_s},
                     {u"a. . .b"_s, u"A. B. "_s}});
}

TEST(Sentences, only_blanks_are_trimmed) {
    expectSentences({{u"  a pin  .   b  "_s, u"A pin. B. "_s},
                     {u"a.\tb"_s, u"A. \tb. "_s},
                     {u"a.\r\nb"_s, u"A. \r\nb. "_s},
                     {u"a.\t"_s, u"A. \t. "_s},
                     {u"a. \r\n "_s, u"A. \r\n. "_s},
                     {u"a.\u00A0"_s, u"A. \u00A0. "_s}});
}

TEST(Sentences, a_piece_that_begins_with_a_break_or_an_entity_keeps_its_first_letter) {
    expectSentences({{u"a.<br>b"_s, u"A. <br>b. "_s}, {u"a.&nbsp;b"_s, u"A. &nbsp;b. "_s}});
}

TEST(Sentences, other_marks_end_none) {
    expectSentences({{u"is it? yes! so"_s, u"Is it? yes! so. "_s}});
}

TEST(Sentences, letters_behind_the_first_keep_their_case) {
    expectSentences({{u"the LED glows. mcAdam"_s, u"The LED glows. McAdam. "_s}});
}

TEST(Sentences, characters_without_an_upper_case_of_one_unit_stand) {
    expectSentences({{u"\u00DF.\U00010428.x"_s, u"\u00DF. \U00010428. X. "_s}});
    const QString lone(QChar(0xD801));
    EXPECT_EQ(capitalizeSentences(lone + u'.' + QChar(0xDC28)),
              lone + u". "_s + QChar(0xDC28) + u". "_s);
}

TEST(Sentences, a_megabyte_of_periods_has_a_result_of_the_length_foretold) {
    EXPECT_EQ(capitalizeSentences(u"a."_s.repeated(500'000)), u"A. "_s.repeated(500'000));
    EXPECT_EQ(capitalizeSentences(QString(1'000'000, u'.')), u""_s);
    EXPECT_EQ(capitalizeSentences(u" ."_s.repeated(500'000)), u""_s);
    EXPECT_EQ(capitalizeSentences(QString(1'000'000, u' ') + u'.').size(), 0);
}

TEST(Sentences, a_period_is_added_unless_the_trimmed_text_ends_in_one) {
    EXPECT_EQ(withPeriod(u"  to hold a pin "), u"to hold a pin."_s);
    EXPECT_EQ(withPeriod(u" to hold a pin. "), u"to hold a pin."_s);
    EXPECT_EQ(withPeriod(u"a pin.."), u"a pin.."_s);
    EXPECT_EQ(withPeriod(u"."), u"."_s);
}

TEST(Sentences, an_empty_text_is_given_no_period) {
    EXPECT_EQ(withPeriod(u""), u""_s);
    EXPECT_EQ(withPeriod(u"   "), u""_s);
    EXPECT_EQ(lowerWithPeriod(u"  "), u""_s);
}

TEST(Sentences, a_period_within_the_text_is_left_alone) {
    EXPECT_EQ(withPeriod(u"e.g. a 3.5 mm pin"), u"e.g. a 3.5 mm pin."_s);
    EXPECT_EQ(withPeriod(u"a. b"), u"a. b."_s);
}

TEST(Sentences, a_period_before_a_tab_or_a_line_end_is_not_the_last_character) {
    EXPECT_EQ(withPeriod(u"a.\t"), u"a.\t."_s);
    EXPECT_EQ(withPeriod(u"a.\r\n"), u"a.\r\n."_s);
}

TEST(Sentences, adding_a_period_raises_and_lowers_nothing) {
    EXPECT_EQ(withPeriod(u"to HOLD"), u"to HOLD."_s);
}

TEST(Sentences, the_lower_form_is_in_lower_case_throughout) {
    EXPECT_EQ(lowerWithPeriod(u" To HOLD \u00C4 "), u"to hold \u00E4."_s);
    EXPECT_EQ(lowerWithPeriod(u"J."), u"j."_s);
}

TEST(Sentences, a_middle_name_becomes_an_initial_with_a_period) {
    EXPECT_EQ(lowerWithPeriod(u"j"), u"j."_s);
    EXPECT_EQ(properCaseWords(lowerWithPeriod(u"j")), u"J."_s);
    EXPECT_EQ(properCaseWords(lowerWithPeriod(u"ANN marie")), u"Ann Marie."_s);
}
