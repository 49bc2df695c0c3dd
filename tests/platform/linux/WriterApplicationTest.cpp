#include "platform/linux/WriterTesting.h"
#include "support/ErrorOf.h"
#include "support/FakeWordProcessor.h"
#include "support/PrintQt.h"

#include <QImage>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

// What a word processor promises, kept by LibreOffice and by the one over plain text that stands in
// for it in most tests. All tests of a kind share one application.

namespace {

class WordApplicationTest : public WriterTesting, public testing::WithParamInterface<bool> {
protected:
    static void TearDownTestSuite() { application().reset(); }

    void SetUp() override {
        if (!isReal())
            return;
        WriterTesting::SetUp();
        if (IsSkipped() || application())
            return;
        static QTemporaryDir work;
        folders.temporary = work.path();
        application() = libreOffice.start();
    }

    [[nodiscard]] static bool isReal() { return GetParam(); }

    WordApplication& word() {
        if (!isReal() && !fake_)
            fake_ = fakes_.start();
        return isReal() ? *application() : *fake_;
    }

    /// Opens a document of these plain paragraphs, between two that mark its ends.
    void open(const QStringList& paragraphs) {
        const QStringList all = QStringList(u"{start}"_s) + paragraphs + QStringList(u"{end}"_s);
        if (!isReal()) {
            writeFile(path(u"document.txt"_s), all.join(u'\n').toUtf8());
            return word().openDocument(path(u"document.txt"_s));
        }
        QStringList styled;
        for (const QString& paragraph : all)
            styled.append(u"plain|"_s + paragraph.toHtmlEscaped());
        word().openDocument(document(styled));
    }

    /// The paragraphs between the ends.
    QStringList body() {
        EXPECT_TRUE(word().find(u"{start}"_s));
        const auto start = word().selectionEnd();
        EXPECT_TRUE(word().find(u"{end}"_s));
        word().select(word().selectionStart(), start);
        const QString text = word().selectedText();
        return text.sliced(1, text.size() - 2).split(u'\r');
    }

    /// Selects a text and goes behind it.
    void goBehind(const QString& text) {
        EXPECT_TRUE(word().find(text));
        word().moveRight();
    }

private:
    static std::unique_ptr<WordApplication>& application() {
        static std::unique_ptr<WordApplication> shared;
        return shared;
    }

    FakeWordProcessor fakes_;
    std::unique_ptr<WordApplication> fake_;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Fake, WordApplicationTest, testing::Values(false));
INSTANTIATE_TEST_SUITE_P(LibreOffice, WordApplicationTest, testing::Values(true));

TEST_P(WordApplicationTest, a_search_runs_forward_and_wraps_round) {
    open({u"[a]1 [a]2"_s, u"[a]3"_s});
    goBehind(u"1"_s);
    for (const QString& next : {u"2"_s, u"3"_s, u"1"_s}) {
        EXPECT_TRUE(word().find(u"[A]"_s));
        word().moveRight();
        const auto behind = word().selectionEnd();
        word().moveRight();
        word().select(behind, word().selectionEnd());
        EXPECT_EQ(word().selectedText(), next);
    }
}

TEST_P(WordApplicationTest, a_search_finds_parts_of_words_and_no_patterns) {
    open({u"ab[Z.D]cd .*"_s});
    EXPECT_TRUE(word().find(u"[z.d]"_s));
    EXPECT_EQ(word().selectedText(), u"[Z.D]"_s);
    EXPECT_FALSE(word().find(u"[z?d]"_s));
    EXPECT_FALSE(word().find(u"b.*"_s));
    EXPECT_EQ(word().selectedText(), u"[Z.D]"_s);
}

TEST_P(WordApplicationTest, the_only_find_is_found_again) {
    open({u"one [a] two"_s});
    EXPECT_TRUE(word().find(u"[a]"_s));
    const auto place = word().selectionStart();
    EXPECT_TRUE(word().find(u"[a]"_s));
    EXPECT_TRUE(word().selectionStart()->isSameAs(*place));
    EXPECT_FALSE(word().selectionEnd()->isSameAs(*place));
}

TEST_P(WordApplicationTest, a_search_begins_at_the_start_of_the_selection) {
    open({u"x [a]1 [a]2 y"_s});
    EXPECT_TRUE(word().find(u"x"_s));
    const auto start = word().selectionStart();
    EXPECT_TRUE(word().find(u"y"_s));
    word().select(start, word().selectionEnd());
    EXPECT_TRUE(word().find(u"[a]"_s));
    word().setSelectedText(u"-"_s);
    EXPECT_EQ(body(), QStringList(u"x -1 [a]2 y"_s));
}

TEST_P(WordApplicationTest, text_takes_the_place_of_the_selection_and_the_place_is_behind_it) {
    open({u"x [a] y"_s});
    EXPECT_TRUE(word().find(u"[a]"_s));
    word().setSelectedText(u"1"_s);
    word().setSelectedText(u"2\t\U0001F58B"_s);
    word().setSelectedText({});
    word().setSelectedText(u"3"_s);
    EXPECT_EQ(body(), QStringList(u"x 12\t\U0001F58B3 y"_s));
}

TEST_P(WordApplicationTest, line_ends_of_all_kinds_start_paragraphs) {
    open({u"x [a] y"_s});
    EXPECT_TRUE(word().find(u"[a]"_s));
    word().setSelectedText(u"1\r\n2\r3\n4\r\n\r\n"_s);
    word().setSelectedText(u"5"_s);
    EXPECT_EQ(body(), QStringList({u"x 1"_s, u"2"_s, u"3"_s, u"4"_s, u""_s, u"5 y"_s}));
}

TEST_P(WordApplicationTest, an_empty_text_removes_the_selection) {
    open({u"x [a] y"_s});
    EXPECT_TRUE(word().find(u"[a]"_s));
    word().setSelectedText({});
    EXPECT_EQ(body(), QStringList(u"x  y"_s));
}

TEST_P(WordApplicationTest, a_copy_is_pasted_as_often_as_wanted) {
    open({u"<a>one"_s, u"two"_s, u"<b>three"_s});
    goBehind(u"<a>"_s);
    const auto start = word().selectionEnd();
    EXPECT_TRUE(word().find(u"<b>"_s));
    word().select(start, word().selectionStart());
    word().copy();
    word().moveRight();
    word().setSelectedText(u","_s);
    word().paste();
    word().setSelectedText(u";"_s);
    word().paste();
    word().setSelectedText(u"!"_s);
    EXPECT_EQ(body(), QStringList({u"<a>one"_s, u"two"_s, u",one"_s, u"two"_s, u";one"_s, u"two"_s,
                                   u"!<b>three"_s}));
}

TEST_P(WordApplicationTest, a_paste_replaces_what_is_selected) {
    open({u"one two"_s});
    EXPECT_TRUE(word().find(u"one"_s));
    word().copy();
    EXPECT_TRUE(word().find(u"two"_s));
    word().paste();
    EXPECT_EQ(body(), QStringList(u"one one"_s));
}

TEST_P(WordApplicationTest, the_selection_collapses_before_it_moves) {
    open({u"a[x]b"_s});
    EXPECT_TRUE(word().find(u"[x]"_s));
    word().moveLeft();
    word().setSelectedText(u"1"_s);
    EXPECT_TRUE(word().find(u"[x]"_s));
    word().moveRight();
    word().moveRight();
    word().setSelectedText(u"2"_s);
    word().moveLeft();
    word().moveLeft();
    word().setSelectedText(u"3"_s);
    EXPECT_EQ(body(), QStringList(u"a1[x]3b2"_s));
}

TEST_P(WordApplicationTest, single_characters_are_deleted_on_either_side) {
    open({u"ab|cd"_s, u"ef"_s});
    goBehind(u"|"_s);
    word().deleteForward();
    word().deleteBackward();
    EXPECT_EQ(body(), QStringList({u"abd"_s, u"ef"_s}));
    goBehind(u"abd"_s);
    word().deleteForward();
    EXPECT_EQ(body(), QStringList(u"abdef"_s));
    EXPECT_TRUE(word().find(u"bde"_s));
    word().deleteForward();
    EXPECT_EQ(body(), QStringList(u"af"_s));
    EXPECT_TRUE(word().find(u"f"_s));
    word().deleteBackward();
    EXPECT_EQ(body(), QStringList(u"a"_s));
}

TEST_P(WordApplicationTest, empty_paragraphs_are_deleted_from_either_side) {
    open({u"one"_s, u"|"_s, u"|"_s, u"two"_s});
    EXPECT_TRUE(word().find(u"|"_s));
    word().setSelectedText({});
    word().deleteForward();
    EXPECT_EQ(body(), QStringList({u"one"_s, u"|"_s, u"two"_s}));
    EXPECT_TRUE(word().find(u"|"_s));
    word().setSelectedText({});
    word().deleteBackward();
    EXPECT_EQ(body(), QStringList({u"one"_s, u"two"_s}));
}

TEST_P(WordApplicationTest, a_picture_takes_the_place_of_the_selection) {
    QImage image(30, 20, QImage::Format_RGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(path(u"a picture \u00E9 #1.PNG"_s)));
    open({u"x [a] y"_s});
    EXPECT_TRUE(word().find(u"[a]"_s));
    word().addPicture(path(u"a picture \u00E9 #1.PNG"_s));
    word().setSelectedText(u"!"_s);
    EXPECT_FALSE(word().find(u"[a]"_s));
    EXPECT_TRUE(word().find(u"! y"_s));
}

TEST_P(WordApplicationTest, a_picture_that_is_not_there_leaves_the_selection) {
    open({u"x [a] y"_s});
    EXPECT_TRUE(word().find(u"[a]"_s));
    EXPECT_EQ(errorOf([&] { word().addPicture(u"/nowhere/fig.png"_s); }).source(),
              u"/nowhere/fig.png"_s);
    EXPECT_EQ(word().selectedText(), u"[a]"_s);
}

TEST_P(WordApplicationTest, a_document_that_is_not_there_is_an_error) {
    EXPECT_EQ(errorOf([&] { word().openDocument(u"/nowhere/a.doc"_s); }).source(),
              u"/nowhere/a.doc"_s);
    EXPECT_EQ(errorOf([&] { word().addDocument(u"/nowhere/a.doc"_s); }).source(),
              u"/nowhere/a.doc"_s);
}

TEST_P(WordApplicationTest, a_document_is_saved_where_there_is_a_folder) {
    open({u"text"_s});
    word().saveDocument(path(u"saved.doc"_s));
    EXPECT_GT(contentOf(path(u"saved.doc"_s)).size(), 0);
    EXPECT_EQ(errorOf([&] { word().saveDocument(path(u"nowhere/saved.doc"_s)); }).source(),
              path(u"nowhere/saved.doc"_s));
    EXPECT_FALSE(QFileInfo::exists(path(u"nowhere"_s)));
    word().closeDocument();
}
