#include "core/text/LineBreaks.h"

#include "support/FakeTextMeasure.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto Word = BreakMode::BreakWord;
constexpr auto All = BreakMode::BreakAll;

class LineBreaksTest : public testing::Test {
protected:
    qsizetype position(const QString& text, double width, BreakMode mode) {
        return findBreakPosition(text, width, mode, measure);
    }

    QString fitted(const QString& text, double width, bool closeBracket = false) {
        return fitCaptionToWidth(text, width, closeBracket, measure);
    }

    QStringList wrapped(const QString& text, double width,
                        TextWeight weight = TextWeight::Regular) {
        return wrapIntoLines(text, width, weight, measure);
    }

    FakeTextMeasure measure;
};

} // namespace

TEST_F(LineBreaksTest, a_text_that_fits_exactly_stays_on_the_line) {
    EXPECT_EQ(position(u"0123456789"_s, 100, Word), 10);
    EXPECT_EQ(position(u"0123456789"_s, 100, All), 10);
    EXPECT_EQ(position(u""_s, 100, Word), 0);
}

TEST_F(LineBreaksTest, a_word_that_is_too_wide_is_cut_by_characters) {
    EXPECT_EQ(position(u"0123456789x"_s, 100, Word), 10);
    EXPECT_EQ(position(u"0123456789x"_s, 99, Word), 9);
}

TEST_F(LineBreaksTest, a_text_with_a_blank_is_broken_behind_its_last_one_wherever_that_stands) {
    EXPECT_EQ(position(u"ab cd efghijklm"_s, 100, Word), 6);
    EXPECT_EQ(position(u"abcdefghijklm no p"_s, 100, Word), 17);
}

TEST_F(LineBreaksTest, blanks_do_not_matter_where_all_positions_will_do) {
    EXPECT_EQ(position(u"ab cd efghijklm"_s, 100, All), 10);
}

TEST_F(LineBreaksTest, the_first_character_may_be_too_wide_already) {
    EXPECT_EQ(position(u"ab"_s, 5, Word), 0);
    EXPECT_EQ(position(u"ab"_s, 5, All), 0);
}

TEST_F(LineBreaksTest, the_two_halves_of_a_character_stay_together) {
    EXPECT_EQ(position(u"123456789\U0001F58B!"_s, 100, All), 9);
}

TEST_F(LineBreaksTest, every_width_gives_the_position_that_counting_gives) {
    const QString text(200, u'm');
    for (int fits = 0; fits <= 200; ++fits)
        ASSERT_EQ(position(text, fits * 10 + 5, All), fits);
}

TEST_F(LineBreaksTest, a_caption_narrower_than_its_width_comes_back_whole) {
    EXPECT_EQ(fitted(u""_s, 100), u"");
    EXPECT_EQ(fitted(u" folding  "_s, 110), u" folding  ");
    EXPECT_EQ(fitted(u"folding e"_s, 91, true), u"folding e");
}

TEST_F(LineBreaksTest, a_caption_that_reaches_its_width_is_cut_and_dotted) {
    EXPECT_EQ(fitted(u"folding easel"_s, 100), u"folding ea...");
    EXPECT_EQ(fitted(u"folding easel"_s, 80), u"folding...");
    EXPECT_EQ(fitted(u"folding easel"_s, 100, true), u"folding ea...)");
}

TEST_F(LineBreaksTest, a_caption_of_exactly_its_width_gets_dots_and_loses_nothing) {
    EXPECT_EQ(fitted(u"0123456789"_s, 100), u"0123456789...");
    EXPECT_EQ(fitted(u"0123456789 more"_s, 100), u"0123456789...");
}

TEST_F(LineBreaksTest, text_is_set_in_lines_word_by_word) {
    EXPECT_EQ(wrapped(u"one two three four"_s, 90),
              QStringList({u"one two"_s, u"three"_s, u"four"_s}));
    EXPECT_EQ(wrapped(u"one two three four"_s, 101), QStringList({u"one two"_s, u"three four"_s}));
}

TEST_F(LineBreaksTest, a_line_that_reaches_the_width_exactly_is_full) {
    EXPECT_EQ(wrapped(u"0123456789"_s, 100), QStringList({u"0123456789"_s}));
    EXPECT_EQ(wrapped(u"0123456 89"_s, 100), QStringList({u"0123456 89"_s}));
}

TEST_F(LineBreaksTest, a_word_wider_than_the_line_is_broken_inside) {
    EXPECT_EQ(wrapped(u"a 0123456789abcdefghijXYZ b"_s, 100),
              QStringList({u"a"_s, u"0123456789"_s, u"abcdefghij"_s, u"XYZ b"_s}));
}

TEST_F(LineBreaksTest, bold_lines_hold_less) {
    EXPECT_EQ(wrapped(u"aaaa bbbb"_s, 100, TextWeight::Bold), QStringList({u"aaaa"_s, u"bbbb"_s}));
    EXPECT_EQ(wrapped(u"aaaa bbbb"_s, 100), QStringList({u"aaaa bbbb"_s}));
}

TEST_F(LineBreaksTest, a_text_of_blanks_has_no_lines) {
    EXPECT_EQ(wrapped(u""_s, 100), QStringList());
    EXPECT_EQ(wrapped(u"    "_s, 100), QStringList());
}

TEST_F(LineBreaksTest, blanks_stay_at_the_beginning_and_inside_and_go_at_the_end) {
    EXPECT_EQ(wrapped(u"  a  b  "_s, 100), QStringList({u"  a  b"_s}));
}

TEST_F(LineBreaksTest, a_line_narrower_than_a_character_takes_one_all_the_same) {
    EXPECT_EQ(wrapped(u"ab\U0001F58B"_s, 5), QStringList({u"a"_s, u"b"_s, u"\U0001F58B"_s}));
}

TEST_F(LineBreaksTest, no_character_is_lost_at_any_width) {
    const QString text = u"of the pin, of the clip and of the hinge-and-pin assembly"_s;
    for (int width = 1; width < 700; ++width)
        ASSERT_EQ(wrapped(text, width).join(QString()).remove(u' '), QString(text).remove(u' '))
            << width;
}

TEST_F(LineBreaksTest, a_million_characters_cost_in_proportion_to_their_lines) {
    const QString text(1'000'000, u'm');
    EXPECT_EQ(wrapped(text, 146).size(), 71429);
    EXPECT_LT(measure.measured, 40'000'000);
    measure.measured = 0;
    EXPECT_EQ(fitted(text, 530).size(), 56);
    EXPECT_LT(measure.measured, 1000);
}
