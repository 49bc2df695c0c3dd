#include "platform/linux/HunspellEngine.h"

#include "support/Files.h"
#include "support/PrintQt.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString Dictionary = QStringLiteral(QUILLFORD_DICTIONARY);

class HunspellEngineTest : public testing::Test {
protected:
    QTemporaryDir folder;
    QString userWords = folder.filePath(u"configuration/words.txt"_s);
    HunspellEngine engine{userWords};
};

class LoadedEngineTest : public HunspellEngineTest {
protected:
    LoadedEngineTest() { engine.loadDictionary(Dictionary); }
};

} // namespace

TEST_F(HunspellEngineTest, without_a_dictionary_every_word_is_known) {
    EXPECT_FALSE(engine.hasDictionary());
    EXPECT_TRUE(engine.isKnown(u"xqzt"_s));
    EXPECT_EQ(engine.suggestions(u"xqzt"_s), QStringList());
}

TEST_F(HunspellEngineTest, a_missing_dictionary_is_passed_over) {
    engine.loadDictionary(folder.filePath(u"none.lex"_s));
    EXPECT_FALSE(engine.hasDictionary());
    EXPECT_TRUE(engine.isKnown(u"xqzt"_s));
    engine.loadDictionary(Dictionary);
    EXPECT_TRUE(engine.hasDictionary());
}

TEST_F(HunspellEngineTest, a_list_of_words_without_affixes_is_passed_over) {
    const QString lonely = folder.filePath(u"lonely.lex"_s);
    ASSERT_TRUE(QFile::copy(Dictionary, lonely));
    engine.loadDictionary(lonely);
    EXPECT_FALSE(engine.hasDictionary());
}

TEST_F(HunspellEngineTest, a_file_of_another_kind_is_passed_over) {
    const QString odd = folder.filePath(u"odd.lex"_s);
    for (const QByteArray& content :
         {QByteArray(), QByteArray("\0\1\2", 3), QByteArray("word\n")}) {
        writeFile(odd, content);
        writeFile(folder.filePath(u"odd.aff"_s), "SET UTF-8\n");
        HunspellEngine fresh(userWords);
        fresh.loadDictionary(odd);
        EXPECT_FALSE(fresh.hasDictionary());
    }
    writeFile(odd, "1\nword\n");
    HunspellEngine fresh(userWords);
    fresh.loadDictionary(odd);
    EXPECT_TRUE(fresh.isKnown(u"word"_s));
    EXPECT_FALSE(fresh.isKnown(u"other"_s));
}

TEST_F(HunspellEngineTest, a_dictionary_in_another_encoding_is_passed_over) {
    const QString latin = folder.filePath(u"latin.lex"_s);
    writeFile(latin, "1\nword\n");
    writeFile(folder.filePath(u"latin.aff"_s), "SET ISO8859-1\n");
    engine.loadDictionary(latin);
    EXPECT_FALSE(engine.hasDictionary());
}

TEST_F(LoadedEngineTest, words_of_us_english_are_known_and_others_are_not) {
    for (const QString& known : {u"tripod"_s, u"Tripod"_s, u"TRIPOD"_s, u"color"_s, u"don't"_s,
                                 u"invention's"_s, u"telescoping"_s, u"embodiments"_s})
        EXPECT_TRUE(engine.isKnown(known)) << qPrintable(known);
    for (const QString& unknown : {u"tripodd"_s, u"xqzt"_s, u"colour"_s, u"dont"_s, u"Käse"_s})
        EXPECT_FALSE(engine.isKnown(unknown)) << qPrintable(unknown);
}

TEST_F(LoadedEngineTest, a_known_word_is_suggested_for_an_unknown_one) {
    const QStringList words = engine.suggestions(u"tripodd"_s);
    EXPECT_TRUE(words.contains(u"tripod"_s));
    EXPECT_LE(words.size(), 6);
}

TEST_F(LoadedEngineTest, the_same_dictionary_is_not_read_again) {
    QElapsedTimer time;
    time.start();
    for (int i = 0; i < 10'000; ++i)
        engine.loadDictionary(Dictionary);
    EXPECT_LT(time.elapsed(), 500);
}

TEST_F(LoadedEngineTest, an_ignored_word_is_known_to_this_run_alone) {
    engine.ignore(u"xqzt"_s);
    EXPECT_TRUE(engine.isKnown(u"xqzt"_s));
    EXPECT_TRUE(engine.isKnown(u"Xqzt"_s));
    EXPECT_FALSE(QFileInfo::exists(userWords));
    HunspellEngine later(userWords);
    later.loadDictionary(Dictionary);
    EXPECT_FALSE(later.isKnown(u"xqzt"_s));
}

TEST_F(LoadedEngineTest, an_added_word_is_known_to_later_runs) {
    engine.addToUserDictionary(u"hingedly"_s);
    EXPECT_TRUE(engine.isKnown(u"hingedly"_s));
    EXPECT_EQ(contentOf(userWords), "hingedly\n");
    HunspellEngine later(userWords);
    later.loadDictionary(Dictionary);
    EXPECT_TRUE(later.isKnown(u"hingedly"_s));
    EXPECT_TRUE(later.isKnown(u"HINGEDLY"_s));
    EXPECT_TRUE(later.suggestions(u"hinggedly"_s).contains(u"hingedly"_s));
}

TEST_F(LoadedEngineTest, words_that_another_program_added_are_known_at_the_next_addition) {
    HunspellEngine other(userWords);
    other.addToUserDictionary(u"slidably"_s);
    EXPECT_FALSE(engine.isKnown(u"slidably"_s));
    engine.addToUserDictionary(u"hingedly"_s);
    EXPECT_TRUE(engine.isKnown(u"slidably"_s));
    EXPECT_EQ(contentOf(userWords), "slidably\nhingedly\n");
}

TEST_F(LoadedEngineTest, where_the_list_cannot_be_written_a_word_is_known_to_this_run) {
    writeFile(QFileInfo(userWords).path(), "a file where the folder would be");
    engine.addToUserDictionary(u"hingedly"_s);
    EXPECT_TRUE(engine.isKnown(u"hingedly"_s));
}

TEST_F(HunspellEngineTest, a_list_of_words_that_cannot_be_read_is_no_reason_to_check_nothing) {
    ASSERT_TRUE(QDir().mkpath(userWords));
    engine.loadDictionary(Dictionary);
    EXPECT_TRUE(engine.hasDictionary());
    EXPECT_FALSE(engine.isKnown(u"xqzt"_s));
}

TEST_F(HunspellEngineTest, words_ignored_before_the_dictionary_came_stay_known) {
    engine.ignore(u"xqzt"_s);
    engine.loadDictionary(Dictionary);
    EXPECT_TRUE(engine.isKnown(u"xqzt"_s));
}

TEST_F(LoadedEngineTest, odd_words_are_answered) {
    for (const QString& odd : {QString(), u"'"_s, QString(5000, u'x'), QString(QChar(0)),
                               QString(QChar(0xD800)), u"\u05d0\u05d1"_s})
        (void)engine.isKnown(odd);
    EXPECT_EQ(engine.suggestions(QString(5000, u'x')), QStringList());
}
