#include "draft/language/Paragraphs.h"

#include "draft/language/Capitals.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString HardBlanks = u"&nbsp;"_s.repeated(12);

struct Field {
    QString text;
    QString result;
};

void expectFields(Route route, Lines lines, std::initializer_list<Field> rows) {
    for (const Field& row : rows)
        EXPECT_EQ(formatParagraphs(row.text, route, lines), row.result)
            << "of " << row.text.toStdString();
}

QString withParagraph(QString textSoFar, Route route, ParagraphEnd end) {
    setIndent(u"a pin", textSoFar, route, end);
    return textSoFar;
}

} // namespace

TEST(Paragraphs, a_title_without_a_period_has_its_first_letter_raised_and_nothing_else) {
    expectFields(Route::Html, Lines::RunTogether,
                 {{u"widget HOLDER"_s, u"Widget HOLDER"_s}, {u"w"_s, u"W"_s}});
}

TEST(Paragraphs, a_line_without_a_period_gets_one_and_the_blank_of_the_sentences) {
    expectFields(Route::Html, Lines::AsParagraphs, {{u"a b"_s, u"A b. "_s}});
    expectFields(Route::Word, Lines::AsParagraphs, {{u"a b"_s, u"A b. "_s}});
}

TEST(Paragraphs, two_lines_in_html_form_are_parted_by_a_break_and_twelve_hard_blanks) {
    expectFields(Route::Html, Lines::AsParagraphs,
                 {{u"first line\r\nsecond line"_s,
                   u"First line. <br>"_s + HardBlanks + u"Second line. "_s}});
}

TEST(Paragraphs, two_lines_in_word_form_are_parted_by_a_line_end_and_a_tab) {
    expectFields(Route::Word, Lines::AsParagraphs,
                 {{u"first line\r\nsecond line"_s, u"First line. \r\n\tSecond line. "_s}});
}

TEST(Paragraphs, three_blank_lines_at_the_end_of_a_field_add_two_breaks) {
    expectFields(Route::Html, Lines::RunTogether, {{u"a\r\n\r\n\r\n"_s, u"A<br><br>"_s}});
    expectFields(Route::Word, Lines::RunTogether, {{u"a\r\n\r\n\r\n"_s, u"A\r\n\r\n"_s}});
}

TEST(Paragraphs, breaks_behind_the_last_paragraph_pass_for_a_sentence) {
    // The paragraph's own break comes first, for a line follows it; then the two of the blank
    // lines.
    expectFields(Route::Html, Lines::AsParagraphs,
                 {{u"a\r\n\r\n\r\n"_s, u"A. <br><br><br>. "_s}, {u"a\r\n"_s, u"A. <br>. "_s}});
    expectFields(Route::Word, Lines::AsParagraphs,
                 {{u"a\r\n\r\n\r\n"_s, u"A. \r\n\r\n\r\n. "_s}, {u"a\r\n"_s, u"A. \r\n. "_s}});
}

TEST(Paragraphs, a_line_that_brings_its_period_gets_no_second_one) {
    expectFields(Route::Html, Lines::AsParagraphs,
                 {{u"a pin.\r\n b.  "_s, u"A pin. <br>"_s + HardBlanks + u"B. "_s}});
}

TEST(Paragraphs, a_blank_line_between_two_adds_a_break_of_its_own) {
    expectFields(Route::Html, Lines::AsParagraphs,
                 {{u"a\r\n   \r\nb"_s, u"A. <br><br>"_s + HardBlanks + u"B. "_s}});
    expectFields(Route::Word, Lines::AsParagraphs, {{u"a\r\n\r\nb"_s, u"A. \r\n\r\n\tB. "_s}});
}

TEST(Paragraphs, a_field_that_begins_with_a_line_end_has_its_first_paragraph_indented) {
    expectFields(Route::Html, Lines::AsParagraphs,
                 {{u"\r\nb"_s, u"<br>"_s + HardBlanks + u"B. "_s}});
    expectFields(Route::Word, Lines::AsParagraphs, {{u"\r\nb"_s, u"\r\n\tB. "_s}});
}

TEST(Paragraphs, lines_run_together_have_nothing_between_them) {
    expectFields(Route::Html, Lines::RunTogether,
                 {{u"widget\r\n holder "_s, u"WidgetHolder"_s},
                  {u"widget\r\n\r\nholder"_s, u"Widget<br>Holder"_s},
                  {u"\r\nholder"_s, u"<br>Holder"_s}});
    expectFields(Route::Word, Lines::RunTogether,
                 {{u"widget\r\n\r\nholder"_s, u"Widget\r\nHolder"_s}});
}

TEST(Paragraphs, a_title_with_a_period_becomes_sentences) {
    expectFields(Route::Html, Lines::RunTogether,
                 {{u"no. 5 holder"_s, u"No. 5 holder. "_s}, {u"holder."_s, u"Holder. "_s}});
}

TEST(Paragraphs, the_periods_of_numbers_and_short_forms_end_sentences) {
    expectFields(
        Route::Html, Lines::AsParagraphs,
        {{u"a pin of 3.5 mm"_s, u"A pin of 3. 5 mm. "_s}, {u"e.g. a pin"_s, u"E. G. A pin. "_s}});
}

TEST(Paragraphs, a_field_of_periods_alone_is_empty) {
    expectFields(Route::Html, Lines::AsParagraphs, {{u"."_s, u""_s}, {u"....."_s, u""_s}});
    expectFields(Route::Html, Lines::AsParagraphs,
                 {{u".\r\n."_s, u"<br>"_s + HardBlanks + u". "_s}});
    expectFields(Route::Word, Lines::RunTogether, {{u"...\r\n..."_s, u""_s}});
}

TEST(Paragraphs, a_field_of_one_blank_line_is_empty) {
    for (const Route route : {Route::Html, Route::Word})
        for (const Lines lines : {Lines::AsParagraphs, Lines::RunTogether})
            expectFields(route, lines, {{u""_s, u""_s}, {u"   "_s, u""_s}});
}

TEST(Paragraphs, a_field_of_line_ends_alone_has_one_break_less_than_lines) {
    expectFields(Route::Html, Lines::AsParagraphs,
                 {{u"\r\n"_s, u"<br>"_s}, {u"\r\n \r\n"_s, u"<br><br>"_s}});
}

TEST(Paragraphs, a_lone_carriage_return_or_line_feed_ends_no_line) {
    expectFields(Route::Html, Lines::AsParagraphs,
                 {{u"a\rb"_s, u"A\rb. "_s},
                  {u"a\nb"_s, u"A\nb. "_s},
                  {u"a\n\rb"_s, u"A\n\rb. "_s},
                  {u"a\r\r\nb"_s, u"A\r. <br>"_s + HardBlanks + u"B. "_s},
                  {u"a\r\n\nb"_s, u"A. <br>"_s + HardBlanks + u"\nb. "_s}});
}

TEST(Paragraphs, a_tab_is_text) {
    expectFields(
        Route::Word, Lines::AsParagraphs,
        {{u"\ta"_s, u"\ta. "_s}, {u"a\r\n\t"_s, u"A. \r\n\t\t. "_s}, {u"a.\t"_s, u"A. \t. "_s}});
}

TEST(Paragraphs, characters_without_an_upper_case_of_one_unit_stand) {
    expectFields(Route::Html, Lines::AsParagraphs,
                 {{u"\u00DFa"_s, u"\u00DFa. "_s}, {u"\U00010428 a"_s, u"\U00010428 a. "_s}});
    const QString lone = QChar(0xDC28) + u"a"_s;
    expectFields(Route::Html, Lines::AsParagraphs, {{lone, lone + u". "_s}});
}

TEST(Paragraphs, what_looks_like_markup_stands_as_typed) {
    expectFields(Route::Html, Lines::AsParagraphs,
                 {{u"a < b & c"_s, u"A < b & c. "_s}, {u"<b>x</b>"_s, u"<b>x</b>. "_s}});
}

TEST(Paragraphs, a_finished_field_is_not_changed_by_raising_its_first_letter_again) {
    const QString finished =
        formatParagraphs(u"a pin\r\nand a lid", Route::Html, Lines::AsParagraphs);
    EXPECT_EQ(upperFirstLetter(finished), finished);
}

TEST(Paragraphs, the_first_of_a_text_has_no_indent) {
    EXPECT_EQ(withParagraph(u""_s, Route::Html, {.hasPeriod = true, .isLast = true}), u"a pin"_s);
    EXPECT_EQ(withParagraph(u""_s, Route::Word, {.hasPeriod = true, .isLast = true}), u"a pin"_s);
}

TEST(Paragraphs, a_later_one_is_indented_for_its_route) {
    EXPECT_EQ(withParagraph(u"x"_s, Route::Html, {.hasPeriod = true, .isLast = true}),
              u"x"_s + HardBlanks + u"a pin"_s);
    EXPECT_EQ(withParagraph(u"x"_s, Route::Word, {.hasPeriod = true, .isLast = true}),
              u"x\ta pin"_s);
}

TEST(Paragraphs, a_missing_period_is_added_before_the_break) {
    EXPECT_EQ(withParagraph(u""_s, Route::Html, {.hasPeriod = false, .isLast = true}), u"a pin."_s);
    EXPECT_EQ(withParagraph(u""_s, Route::Html, {.hasPeriod = false, .isLast = false}),
              u"a pin.<br>"_s);
    EXPECT_EQ(withParagraph(u""_s, Route::Word, {.hasPeriod = false, .isLast = false}),
              u"a pin.\r\n"_s);
}

TEST(Paragraphs, one_that_others_follow_is_closed_by_a_break_of_its_route) {
    EXPECT_EQ(withParagraph(u""_s, Route::Html, {.hasPeriod = true, .isLast = false}),
              u"a pin<br>"_s);
    EXPECT_EQ(withParagraph(u""_s, Route::Word, {.hasPeriod = true, .isLast = false}),
              u"a pin\r\n"_s);
}

TEST(Paragraphs, a_megabyte_of_short_lines_has_a_result_of_the_length_foretold) {
    constexpr qsizetype Count = 333'333;
    const QString field = u"a\r\n"_s.repeated(Count) + u"a"_s;
    // Count + 1 paragraphs "A. ", each but the first behind a break and an indent.
    EXPECT_EQ(formatParagraphs(field, Route::Html, Lines::AsParagraphs).size(),
              3 * (Count + 1) + (4 + HardBlanks.size()) * Count);
    EXPECT_EQ(formatParagraphs(field, Route::Word, Lines::AsParagraphs).size(),
              3 * (Count + 1) + 3 * Count);
    EXPECT_EQ(formatParagraphs(field, Route::Html, Lines::RunTogether).size(), Count + 1);
}

TEST(Paragraphs, a_megabyte_of_line_ends_has_a_result_of_the_length_foretold) {
    const QString field = u"\r\n"_s.repeated(500'000);
    EXPECT_EQ(formatParagraphs(field, Route::Html, Lines::AsParagraphs).size(), 2'000'000);
    EXPECT_EQ(formatParagraphs(field, Route::Word, Lines::AsParagraphs), field);
}

TEST(Paragraphs, a_megabyte_of_periods_or_blanks_has_a_result_of_the_length_foretold) {
    const auto size = [](const QString& field) {
        return formatParagraphs(field, Route::Html, Lines::AsParagraphs).size();
    };
    EXPECT_EQ(size(u"a."_s.repeated(500'000)), 1'500'000);
    EXPECT_EQ(size(QString(1'000'000, u'.')), 0);
    EXPECT_EQ(size(QString(1'000'000, u' ')), 0);
    EXPECT_EQ(size(u"a "_s.repeated(500'000)), 1'000'001);
    EXPECT_EQ(size(QString(1'000'000, u'a')), 1'000'002);
}
