#include "platform/linux/WordList.h"

#include "base/Error.h"
#include "support/Files.h"
#include "support/PrintQt.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <thread>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class WordListTest : public testing::Test {
protected:
    QTemporaryDir folder;
    QString file = folder.filePath(u"configuration/words.txt"_s);
    WordList list{file};
};

} // namespace

TEST_F(WordListTest, a_list_that_is_missing_has_no_words_and_is_not_made) {
    EXPECT_EQ(list.words(), QStringList());
    EXPECT_FALSE(QFileInfo::exists(QFileInfo(file).path()));
}

TEST_F(WordListTest, words_stand_one_a_line_in_utf_8) {
    list.add(u"hingedly"_s);
    list.add(u"Käse"_s);
    EXPECT_EQ(contentOf(file), QByteArray("hingedly\nK\xC3\xA4se\n"));
    EXPECT_EQ(list.words(), QStringList({u"hingedly"_s, u"Käse"_s}));
}

TEST_F(WordListTest, a_word_is_added_once) {
    list.add(u"hingedly"_s);
    list.add(u"hingedly"_s);
    EXPECT_EQ(contentOf(file), "hingedly\n");
}

TEST_F(WordListTest, a_list_edited_by_hand_is_read_and_kept) {
    const QByteArray edited = "  hingedly  \r\n\n\xFF\xFE\nslidably";
    writeFile(file, edited);
    EXPECT_EQ(list.words().first(), u"hingedly"_s);
    EXPECT_EQ(list.words().last(), u"slidably"_s);
    EXPECT_EQ(list.words().size(), 3);
    list.add(u"pivotably"_s);
    EXPECT_EQ(contentOf(file), edited + "\npivotably\n");
}

TEST_F(WordListTest, a_folder_in_its_place_is_an_error_and_stays) {
    ASSERT_TRUE(QDir().mkpath(file));
    EXPECT_THROW((void)list.words(), Error);
    EXPECT_THROW(list.add(u"hingedly"_s), Error);
    EXPECT_TRUE(QFileInfo(file).isDir());
}

TEST_F(WordListTest, two_who_add_at_the_same_time_lose_no_word) {
    constexpr int Rounds = 100;
    const auto addAll = [this](QChar kind) {
        WordList own(file);
        for (int i = 0; i < Rounds; ++i)
            own.add(kind + QString::number(i));
    };
    std::thread other(addAll, u'a');
    addAll(u'b');
    other.join();
    const QStringList words = list.words();
    EXPECT_EQ(words.size(), 2 * Rounds);
    for (const QChar kind : {u'a', u'b'})
        for (int i = 0; i < Rounds; ++i)
            EXPECT_TRUE(words.contains(kind + QString::number(i)));
}
