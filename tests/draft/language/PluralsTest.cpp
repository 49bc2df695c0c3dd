#include "draft/language/Plurals.h"

#include "base/Error.h"
#include "support/PrintQt.h"

#include <functional>
#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

void expectInvalidCall(const std::function<QString()>& call) {
    try {
        ADD_FAILURE() << "gave " << call().toStdString();
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), 5);
        EXPECT_EQ(error.description(), u"Invalid procedure call or argument"_s);
        EXPECT_EQ(error.source(), u"lastLetters"_s);
        EXPECT_EQ(error.offset(), Error::NoOffset);
    }
}

struct Plural {
    QString word;
    QString plural;
};

void expectPlurals(std::initializer_list<Plural> rows) {
    for (const Plural& row : rows)
        EXPECT_EQ(pluralize(row.word), row.plural) << "of " << row.word.toStdString();
}

} // namespace

TEST(Plurals, of_bus_is_an_empty_text) {
    EXPECT_EQ(pluralize(u"bus"), u""_s);
}

TEST(Plurals, of_s_is_s) {
    EXPECT_EQ(pluralize(u"s"), u"s"_s);
    EXPECT_EQ(pluralize(u"S"), u"S"_s);
}

TEST(Plurals, of_y_is_ys) {
    EXPECT_EQ(pluralize(u"y"), u"ys"_s);
}

TEST(Plurals, of_key_is_keys) {
    EXPECT_EQ(pluralize(u"key"), u"keys"_s);
}

TEST(Plurals, of_sky_is_skies) {
    EXPECT_EQ(pluralize(u"sky"), u"skies"_s);
}

TEST(Plurals, of_ax_is_axes) {
    EXPECT_EQ(pluralize(u"ax"), u"axes"_s);
}

TEST(Plurals, of_an_empty_text_are_a_fault_of_the_run) {
    expectInvalidCall([] { return pluralize(u""); });
}

TEST(Plurals, follow_the_last_letters_alone) {
    expectPlurals({{u"device"_s, u"devices"_s},
                   {u"box"_s, u"boxes"_s},
                   {u"battery"_s, u"batteries"_s},
                   {u"toy"_s, u"toys"_s},
                   {u"brush"_s, u"brushs"_s},
                   {u"fastener"_s, u"fasteners"_s},
                   {u"glasses for a key"_s, u"glasses for a keys"_s},
                   {u"boxes of sky"_s, u"boxes of skies"_s}});
}

TEST(Plurals, of_anything_longer_that_ends_in_s_are_empty) {
    expectPlurals({{u"glass"_s, u""_s},
                   {u"devices"_s, u""_s},
                   {u"ss"_s, u""_s},
                   {u"BUS"_s, u""_s},
                   {u"set of boxes"_s, u""_s}});
}

TEST(Plurals, keep_the_case_of_the_word) {
    expectPlurals({{u"BOX"_s, u"BOXes"_s},
                   {u"SKY"_s, u"SKies"_s},
                   {u"KEY"_s, u"KEYs"_s},
                   {u"x"_s, u"xes"_s}});
}

TEST(Plurals, take_every_vowel_before_y_for_one) {
    expectPlurals({{u"ay"_s, u"ays"_s},
                   {u"ey"_s, u"eys"_s},
                   {u"iy"_s, u"iys"_s},
                   {u"oy"_s, u"oys"_s},
                   {u"uy"_s, u"uys"_s}});
}

TEST(Plurals, take_whatever_else_stands_before_y_for_a_consonant) {
    expectPlurals({{u"yy"_s, u"yies"_s},
                   {u" y"_s, u" ies"_s},
                   {u"3y"_s, u"3ies"_s},
                   {u"\u00E4y"_s, u"\u00E4ies"_s},
                   {u"\U0001F600y"_s, u"\U0001F600ies"_s}});
}

TEST(Plurals, of_any_other_ending_add_an_s) {
    expectPlurals({{u"box "_s, u"box s"_s},
                   {u"box."_s, u"box.s"_s},
                   {u"a"_s, u"as"_s},
                   {u"gru\u00DF"_s, u"gru\u00DFs"_s},
                   {u"\U0001F600"_s, u"\U0001F600s"_s},
                   {u"sky\t"_s, u"sky\ts"_s}});
}

TEST(Plurals, last_letters_without_a_step_back_run_to_the_end) {
    EXPECT_EQ(lastLetters(u"battery", 7, 1, 0), u"y"_s);
    EXPECT_EQ(lastLetters(u"battery", 6, 1, 0), u"ry"_s);
    EXPECT_EQ(lastLetters(u"battery", 1, 1, 0), u"battery"_s);
}

TEST(Plurals, last_letters_with_a_step_back_are_one_character) {
    EXPECT_EQ(lastLetters(u"battery", 7, 1, 1), u"r"_s);
    EXPECT_EQ(lastLetters(u"battery", 7, 1, 6), u"b"_s);
}

TEST(Plurals, the_count_of_last_letters_plays_no_part) {
    for (const qsizetype count : {-1, 0, 2, 100}) {
        EXPECT_EQ(lastLetters(u"battery", 6, count, 0), u"ry"_s);
        EXPECT_EQ(lastLetters(u"battery", 6, count, 1), u"e"_s);
    }
}

TEST(Plurals, last_letters_beyond_the_end_are_empty) {
    EXPECT_EQ(lastLetters(u"ax", 3, 1, 0), u""_s);
    EXPECT_EQ(lastLetters(u"ax", 9, 1, 2), u""_s);
    EXPECT_EQ(lastLetters(u"", 1, 1, 0), u""_s);
}

TEST(Plurals, last_letters_before_the_first_character_are_a_fault_of_the_run) {
    expectInvalidCall([] { return lastLetters(u"ax", 0, 1, 0); });
    expectInvalidCall([] { return lastLetters(u"ax", -3, 1, 0); });
    expectInvalidCall([] { return lastLetters(u"ax", 1, 1, 1); });
    expectInvalidCall([] { return lastLetters(u"", 0, 1, 0); });
}

TEST(Plurals, of_a_megabyte_end_as_any_other) {
    const QString text = u"y "_s.repeated(500'000) + u"box"_s;
    EXPECT_EQ(pluralize(text), text + u"es"_s);
}
