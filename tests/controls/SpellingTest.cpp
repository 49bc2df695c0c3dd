#include "controls/Spelling.h"

#include "support/FakeSpellEngine.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class SpellingTest : public testing::Test {
protected:
    QStringList unknown(const QString& text) {
        QStringList found;
        for (const TextRange& word : spelling.unknownWords(text))
            found.append(text.sliced(word.start, word.length));
        return found;
    }

    FakeSpellEngine engine;
    QStringList names;
    int reads = 0;
    Spelling spelling{engine, [this] {
                          ++reads;
                          return names;
                      }};
};

} // namespace

TEST_F(SpellingTest, unknown_words_are_found_at_their_places) {
    engine.unknown = {u"xqzt"_s, u"wrng"_s};
    EXPECT_EQ(spelling.unknownWords(u"an xqzt leg, wrng."_s), QList<TextRange>({{3, 4}, {13, 4}}));
}

TEST_F(SpellingTest, without_a_dictionary_nothing_is_found_and_no_word_is_asked) {
    engine.unknown = {u"xqzt"_s};
    engine.has = false;
    EXPECT_EQ(unknown(u"an xqzt"_s), QStringList());
    EXPECT_EQ(engine.asked, QStringList());
}

TEST_F(SpellingTest, the_engine_is_asked_for_words_as_dictionaries_have_them) {
    (void)unknown(u"John\u2019s cafe\u0301 10a USB \u05d0\u05d1"_s);
    EXPECT_EQ(engine.asked, QStringList({u"John's"_s, u"caf\u00e9"_s}));
}

TEST_F(SpellingTest, words_of_names_are_known_in_any_case_and_with_s) {
    engine.unknown = {u"flexibar"_s, u"Flexibar"_s, u"flexibar's"_s, u"Zbigniew"_s, u"wrng"_s};
    names = {u"FLEXIBAR clamp"_s, u"zbigniew"_s};
    EXPECT_EQ(unknown(u"flexibar Flexibar flexibar\u2019s Zbigniew wrng"_s),
              QStringList({u"wrng"_s}));
}

TEST_F(SpellingTest, a_part_of_a_name_s_word_is_not_known) {
    engine.unknown = {u"flexi"_s};
    names = {u"flexibar"_s};
    EXPECT_EQ(unknown(u"flexi"_s), QStringList({u"flexi"_s}));
}

TEST_F(SpellingTest, names_are_read_as_they_stand_now_and_for_unknown_words_alone) {
    (void)unknown(u"all of these are known"_s);
    EXPECT_EQ(reads, 0);
    engine.unknown = {u"flexibar"_s};
    EXPECT_EQ(unknown(u"flexibar"_s), QStringList({u"flexibar"_s}));
    names = {u"flexibar"_s};
    EXPECT_EQ(unknown(u"flexibar"_s), QStringList());
}

TEST_F(SpellingTest, only_words_that_touch_the_part_are_found) {
    engine.unknown = {u"one"_s, u"two"_s, u"three"_s};
    const QString text = u"one two three"_s;
    EXPECT_EQ(spelling.unknownWords(text, 5, 6), QList<TextRange>({{4, 3}}));
    EXPECT_EQ(spelling.unknownWords(text, 3, 4), QList<TextRange>({{0, 3}, {4, 3}}));
    EXPECT_EQ(spelling.unknownWords(text, 13, 13), QList<TextRange>({{8, 5}}));
}

TEST_F(SpellingTest, a_small_part_of_a_megabyte_asks_for_few_words) {
    const QString text = u"hinged leg "_s.repeated(100'000);
    (void)spelling.unknownWords(text, 500'000, 500'100);
    EXPECT_LT(engine.asked.size(), 30);
}

TEST_F(SpellingTest, an_address_that_reaches_out_of_the_part_is_no_word) {
    engine.unknown = {u"exmple"_s};
    const QString text = u"http://host/"_s + u"exmple/"_s.repeated(10);
    EXPECT_EQ(spelling.unknownWords(text, 40, 50), QList<TextRange>());
}

TEST_F(SpellingTest, a_word_is_added_and_ignored_as_dictionaries_have_it) {
    spelling.addToDictionary(u"John\u2019s");
    spelling.ignore(u"cafe\u0301");
    EXPECT_EQ(engine.added, QStringList({u"John's"_s}));
    EXPECT_EQ(engine.ignored, QStringList({u"caf\u00e9"_s}));
}
