#include "controls/SpellWords.h"

#include "support/PrintQt.h"

#include <QElapsedTimer>
#include <QStringList>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

QStringList words(const QString& text) {
    QStringList found;
    for (const TextRange& word : wordsIn(text))
        found.append(text.sliced(word.start, word.length));
    return found;
}

} // namespace

TEST(SpellWordsTest, words_are_parted_by_whatever_is_no_letter) {
    EXPECT_EQ(
        words(u"A leg, (hinged) leg/arm\tand\nbolt."_s),
        QStringList({u"A"_s, u"leg"_s, u"hinged"_s, u"leg"_s, u"arm"_s, u"and"_s, u"bolt"_s}));
    EXPECT_EQ(words(u"twist-lock"_s), QStringList({u"twist"_s, u"lock"_s}));
    EXPECT_EQ(words(QString()), QStringList());
    EXPECT_EQ(words(u" .,; "_s), QStringList());
}

TEST(SpellWordsTest, an_apostrophe_belongs_to_a_word_between_letters_alone) {
    EXPECT_EQ(words(u"don't 'leg' the legs' John\u2019s"_s),
              QStringList({u"don't"_s, u"leg"_s, u"the"_s, u"legs"_s, u"John\u2019s"_s}));
}

TEST(SpellWordsTest, what_has_a_digit_is_no_word) {
    EXPECT_EQ(words(u"leg 10 10a A4 H2O 3D x_y leg11 clamp"_s),
              QStringList({u"leg"_s, u"clamp"_s}));
}

TEST(SpellWordsTest, addresses_are_no_words) {
    EXPECT_EQ(words(u"see www.exmple.com, http://exmple.com/a and ann@exmple.com here"_s),
              QStringList({u"see"_s, u"and"_s, u"here"_s}));
}

TEST(SpellWordsTest, combining_marks_and_soft_hyphens_belong_to_their_word) {
    EXPECT_EQ(words(u"cafe\u0301 in\u00advention"_s),
              QStringList({u"cafe\u0301"_s, u"in\u00advention"_s}));
}

TEST(SpellWordsTest, letters_of_two_units_are_letters) {
    EXPECT_EQ(words(u"\U0001D49C\U0001D49E \U0001F527"_s),
              QStringList({u"\U0001D49C\U0001D49E"_s}));
}

TEST(SpellWordsTest, halves_of_letters_and_control_characters_part_words) {
    const QString broken = u"a"_s + QChar(0xD835) + u"b"_s + QChar(0) + u"c"_s + QChar(0xDC9C);
    EXPECT_EQ(words(broken), QStringList({u"a"_s, u"b"_s, u"c"_s}));
}

TEST(SpellWordsTest, a_right_to_left_text_has_words_in_the_order_of_reading) {
    EXPECT_EQ(words(u"\u05d0\u05d1 leg \u05d2"_s),
              QStringList({u"\u05d0\u05d1"_s, u"leg"_s, u"\u05d2"_s}));
}

TEST(SpellWordsTest, a_dictionary_of_english_says_nothing_on_acronyms_and_single_letters) {
    for (const QString& word : {u"a"_s, u"X"_s, u"USB"_s, u"LEDs"_s, u"PVC's"_s, u"LED\u2019s"_s})
        EXPECT_FALSE(isSpellable(word)) << qPrintable(word);
    for (const QString& word : {u"is"_s, u"Is"_s, u"leg"_s, u"McDonald's"_s, u"iPhone"_s, u"Its"_s})
        EXPECT_TRUE(isSpellable(word)) << qPrintable(word);
}

TEST(SpellWordsTest, a_dictionary_of_english_says_nothing_on_other_scripts) {
    EXPECT_FALSE(isSpellable(u"\u05d0\u05d1"_s));
    EXPECT_FALSE(isSpellable(u"\u0440\u0443\u0447\u043a\u0430"_s));
    EXPECT_FALSE(isSpellable(u"\U0001D49C\U0001D4B7"_s));
    EXPECT_TRUE(isSpellable(u"na\u00efve"_s));
    EXPECT_TRUE(isSpellable(u"cafe\u0301"_s));
}

TEST(SpellWordsTest, a_run_of_more_than_a_hundred_letters_is_no_word_of_any_language) {
    EXPECT_TRUE(isSpellable(QString(100, u'x')));
    EXPECT_FALSE(isSpellable(QString(101, u'x')));
}

TEST(SpellWordsTest, a_word_is_spelled_as_dictionaries_have_it) {
    EXPECT_EQ(spelled(u"John\u2019s"), u"John's"_s);
    EXPECT_EQ(spelled(u"cafe\u0301"), u"caf\u00e9"_s);
    EXPECT_EQ(spelled(u"in\u00adven\u200dtion"), u"invention"_s);
    EXPECT_EQ(spelled(u"leg"), u"leg"_s);
}

TEST(SpellWordsTest, a_megabyte_with_blanks_and_without_takes_a_moment) {
    QElapsedTimer time;
    time.start();
    EXPECT_EQ(wordsIn(QString(1 << 20, u'x')).size(), 1);
    EXPECT_EQ(wordsIn(u"leg' "_s.repeated(200'000)).size(), 200'000);
    EXPECT_EQ(wordsIn(QString(1 << 20, u'\'')).size(), 0);
    EXPECT_LT(time.elapsed(), 2000);
}
