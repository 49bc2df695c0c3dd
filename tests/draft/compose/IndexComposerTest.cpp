#include "draft/compose/IndexComposer.h"

#include "draft/compose/WidgetHolder.h"
#include "support/FakeFolders.h"
#include "support/FakePrompts.h"
#include "support/Files.h"
#include "support/PrintQt.h"

#include <QTemporaryDir>

#include <utility>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class IndexComposerTest : public testing::Test {
protected:
    IndexComposerTest() {
        folders.temporary = folder_.path();
        fillWidgetHolder(fields);
    }

    QString composed() {
        QString html;
        EXPECT_TRUE(composer.ExportToIndex(html));
        EXPECT_FALSE(composer.failure().has_value());
        return html;
    }

    ProjectFields fields;
    FakeFolders folders;
    FakePrompts prompts;
    IndexComposer composer{fields, folders, prompts};

private:
    QTemporaryDir folder_;
};

/// The ten paragraphs of one Main Element.
QString paragraphs(const QString& first, const QString& second = {}) {
    return u"\r\n  <p class=\"element\"><b>"_s + first + u"</b></p>\r\n  <p class=\"element\">"_s +
           second + u"</p>\r\n"_s + u"  <p class=\"element\"></p>\r\n"_s.repeated(8) + u"  "_s;
}

} // namespace

TEST_F(IndexComposerTest, every_main_element_has_ten_paragraphs_parted_by_a_line_break) {
    const QString expected = u"\r\n  <p class=\"centred\">Index of Elements</p>\r\n  "_s +
                             paragraphs(u"10:   Base of Steel "_s) + u"<br>"_s +
                             paragraphs(u"20:   Clip "_s, u"21:   Spring "_s) + u"<br>"_s +
                             paragraphs(u"30:   Pin "_s) + u"\r\n\r\n</body>\r\n</html>\r\n"_s;
    EXPECT_TRUE(composed().endsWith(expected)) << qPrintable(composed());
}

TEST_F(IndexComposerTest, the_page_forbids_selecting_and_copying) {
    EXPECT_EQ(composed().count(
                  u"<body lang=EN-US style='tab-interval:21.0pt;text-justify-trim:punctuation' "
                  "onselectstart='return false' oncopy='document.selection.empty()' "
                  "onbeforecopy='return false' ondragstart='return false' "
                  "oncontextmenu='return false'>"_s),
              1);
}

TEST_F(IndexComposerTest, no_mark_is_left_over) {
    EXPECT_FALSE(composed().contains(u'['));
    EXPECT_FALSE(composed().contains(u"&lt;!--"_s));
}

TEST_F(IndexComposerTest, composing_again_gives_the_same_page) {
    EXPECT_EQ(composed(), composed());
}

TEST_F(IndexComposerTest, the_text_that_was_there_is_replaced) {
    QString html = u"old"_s;
    EXPECT_TRUE(composer.ExportToIndex(html));
    EXPECT_EQ(html, composed());
}

TEST_F(IndexComposerTest, nothing_is_written_but_the_template) {
    (void)composed();
    const QStringList files = QDir(folders.temporary).entryList(QDir::Files);
    ASSERT_EQ(files.size(), 1);
    EXPECT_EQ(contentOf(folders.temporary + u'/' + files.first()),
              contentOf(u":/templates/INDEXHTMLTEMPLATE.htm"_s));
}

TEST_F(IndexComposerTest, a_failure_leaves_the_text_and_shows_no_box) {
    folders.temporary = u"/nowhere"_s;
    QString html = u"old"_s;
    EXPECT_FALSE(composer.ExportToIndex(html));
    EXPECT_EQ(html, u"old"_s);
    ASSERT_TRUE(composer.failure().has_value());
    EXPECT_TRUE(composer.failure()->source().startsWith(u"/nowhere/Temp"_s));
    EXPECT_TRUE(prompts.boxes.empty());
}

TEST_F(IndexComposerTest, a_success_forgets_the_failure_before_it) {
    const QString temporary = std::exchange(folders.temporary, u"/nowhere"_s);
    QString html;
    EXPECT_FALSE(composer.ExportToIndex(html));
    folders.temporary = temporary;
    EXPECT_TRUE(composer.ExportToIndex(html));
    EXPECT_FALSE(composer.failure().has_value());
}

TEST_F(IndexComposerTest, a_name_in_brackets_loses_the_case_that_would_make_it_a_mark) {
    fields.txtElementName(1).setText(u"[Element-2]"_s);
    fields.txtElementName(2).setText(u"the [Element-2]"_s);
    EXPECT_TRUE(composed().contains(u"<b>20:   [element-2] </b>"_s));
    EXPECT_TRUE(composed().contains(u"<b>30:   The [element-2] </b>"_s));
}
