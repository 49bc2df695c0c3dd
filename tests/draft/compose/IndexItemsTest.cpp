#include "draft/compose/IndexItems.h"

#include "core/rules/ReferenceNumerals.h"
#include "draft/compose/WidgetHolder.h"
#include "support/ErrorOf.h"
#include "support/PrintQt.h"

#include <QStringList>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class IndexItemsTest : public testing::Test {
protected:
    IndexItemsTest() { fillWidgetHolder(fields); }

    /// The line for a cell with this text.
    QString line(const QString& text, const QString& numeral, Route route = Route::Html) {
        fields.txtElementName(0).setText(text);
        setIndexItem(page, fields.txtElementName(0), numeral, 1, route);
        return page.p(u"Element-1"_s);
    }

    QStringList lines(int element, Route route = Route::Html) {
        setIndexItems(page, fields, element, route);
        QStringList texts;
        for (int number = 1; number <= 10; ++number)
            texts.append(page.p(u"Element-%1"_s.arg(number)));
        return texts;
    }

    ProjectFields fields;
    HTMLTemplate page;
};

} // namespace

TEST_F(IndexItemsTest, words_are_in_proper_case_each_with_a_blank_behind_it) {
    EXPECT_EQ(line(u"gear of pin"_s, u"10:"_s), u"10:   Gear of Pin "_s);
    EXPECT_EQ(line(u"SPRING clip"_s, u"10:"_s), u"10:   Spring Clip "_s);
}

TEST_F(IndexItemsTest, a_small_word_keeps_the_case_in_which_it_was_typed) {
    EXPECT_EQ(line(u"GEAR OF PIN"_s, u"10:"_s), u"10:   Gear OF Pin "_s);
    EXPECT_EQ(line(u"of At ON iN for"_s, u"10:"_s), u"10:   of At ON iN for "_s);
}

TEST_F(IndexItemsTest, a_word_of_one_letter_goes_to_upper_case) {
    EXPECT_EQ(line(u"a b of c"_s, u"10:"_s), u"10:   A B of C "_s);
}

TEST_F(IndexItemsTest, runs_of_blanks_stay) {
    EXPECT_EQ(line(u" gear  pin "_s, u"10:"_s), u"10:    Gear  Pin  "_s);
}

TEST_F(IndexItemsTest, a_numeral_of_three_digits_has_one_blank_less) {
    EXPECT_EQ(line(u"pin"_s, u"99:"_s), u"99:   Pin "_s);
    EXPECT_EQ(line(u"pin"_s, u"100:"_s), u"100:  Pin "_s);
}

TEST_F(IndexItemsTest, a_blank_cell_gives_an_empty_line) {
    for (const QString& text : {u""_s, u"    "_s})
        for (const Route route : {Route::Html, Route::Word})
            EXPECT_EQ(line(text, u"11:"_s, route), u""_s);
}

TEST_F(IndexItemsTest, for_the_word_processor_every_line_but_the_first_begins_with_a_line_end) {
    EXPECT_EQ(line(u"pin"_s, u"10:"_s, Route::Word), u"10:   Pin "_s);
    EXPECT_EQ(line(u"pin"_s, u"11:"_s, Route::Word), u"\r\n11:   Pin "_s);
    EXPECT_EQ(line(u"pin"_s, u"20:"_s, Route::Word), u"\r\n20:   Pin "_s);
}

TEST_F(IndexItemsTest, for_the_word_processor_there_are_always_three_blanks) {
    EXPECT_EQ(line(u"pin"_s, u"100:"_s, Route::Word), u"\r\n100:   Pin "_s);
}

TEST_F(IndexItemsTest, the_item_number_is_part_of_the_name) {
    setIndexItem(page, fields.txtElementName(2), u"30:"_s, 10, Route::Html);
    EXPECT_EQ(page.p(u"Element-10"_s), u"30:   Pin "_s);
    errorOf([&] { return page.p(u"Element-1"_s); });
}

TEST_F(IndexItemsTest, a_main_element_has_ten_lines_numbered_by_its_place) {
    for (int part = 1; part <= SubElementCount; ++part)
        fields.at(subElementField(part), 1).setText(u"part %1"_s.arg(part));
    EXPECT_EQ(lines(1), QStringList({u"20:   Clip "_s, u"21:   Part 1 "_s, u"22:   Part 2 "_s,
                                     u"23:   Part 3 "_s, u"24:   Part 4 "_s, u"25:   Part 5 "_s,
                                     u"26:   Part 6 "_s, u"27:   Part 7 "_s, u"28:   Part 8 "_s,
                                     u"29:   Part 9 "_s}));
}

TEST_F(IndexItemsTest, a_missing_sub_element_leaves_an_empty_line_among_the_others) {
    fields.txtElementSub3(1).setText(u"hook"_s);
    EXPECT_EQ(lines(1).first(5),
              QStringList({u"20:   Clip "_s, u"21:   Spring "_s, u""_s, u"23:   Hook "_s, u""_s}));
}

TEST_F(IndexItemsTest, the_tenth_and_the_fifteenth_have_numerals_of_three_digits) {
    setCount(fields, FieldGroup::MainElements, 15);
    fields.txtElementName(9).setText(u"tenth"_s);
    fields.txtElementSub9(9).setText(u"last"_s);
    fields.txtElementName(14).setText(u"fifteenth"_s);
    EXPECT_EQ(lines(9).first(), u"100:  Tenth "_s);
    EXPECT_EQ(lines(9).last(), u"109:  Last "_s);
    EXPECT_EQ(lines(14).first(), u"150:  Fifteenth "_s);
}

TEST_F(IndexItemsTest, without_a_panel_of_sub_elements_the_nine_lines_keep_what_they_had) {
    fields.setPanelCount(FieldGroup::SubElements, 2);
    const QStringList before = lines(1);
    EXPECT_EQ(lines(2).first(), u"30:   Pin "_s);
    EXPECT_EQ(lines(2).sliced(1), before.sliced(1));
}
