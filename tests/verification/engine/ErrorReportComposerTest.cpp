#include "verification/engine/ErrorReportComposer.h"

#include "support/FakeFolders.h"
#include "support/FakePrompts.h"
#include "support/Files.h"
#include "support/PrintQt.h"

#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class ErrorReportTest : public testing::Test {
protected:
    ErrorReportTest() { folders.temporary = folder.path(); }

    QString page() {
        QString html;
        EXPECT_TRUE(composer.ExportToErrorReport(html));
        EXPECT_FALSE(composer.failure());
        return html;
    }

    /// The paragraphs of the page, its heads in stars, without empty ones.
    QStringList paragraphs() {
        QString body = page().section(u"<body"_s, 1);
        body.remove(QRegularExpression(u"^[^>]*>"_s))
            .replace(QRegularExpression(u"</?b>"_s), u"*"_s);
        QStringList found;
        static const QRegularExpression paragraph(u"<p[^>]*>(.*?)</p>"_s);
        for (const QRegularExpressionMatch& match : paragraph.globalMatch(body))
            if (!match.captured(1).isEmpty())
                found << match.captured(1);
        return found;
    }

    QTemporaryDir folder;
    FakeFolders folders;
    FakePrompts prompts;
    MissingLists lists;
    ErrorReportComposer composer{lists, folders, prompts};
};

} // namespace

TEST_F(ErrorReportTest, lists_all_that_is_missing_under_its_head) {
    lists.missingMainElements.add(u"hinge"_s, {0, 0});
    lists.missingMainElements.add(u"leaf"_s, {1, 0});
    lists.missingSubElements.add(u"pin"_s, {0, 1});
    lists.missingNumerals.add(u"10"_s, {0, 0});
    lists.missingNumerals.add(u"11"_s, {0, 1});
    EXPECT_EQ(paragraphs(),
              QStringList({u"Error Report"_s, u"*1. Main Elements (Possible Errors)*"_s,
                           u"- hinge"_s, u"- leaf"_s, u"*2.Sub-Elements (Possible Errors)*"_s,
                           u"- pin"_s, u"*3. Reference Numerals (Possible Errors)*"_s,
                           u"- Reference Numerals 10, 11 appear to be missing."_s}));
}

TEST_F(ErrorReportTest, with_only_numerals_missing_the_other_heads_read_verified) {
    lists.missingNumerals.add(u"12"_s, {0, 2});
    EXPECT_EQ(paragraphs(), QStringList({u"Error Report"_s, u"*1. Main Elements (Verified)*"_s,
                                         u"*2.Sub-Elements (Verified)*"_s,
                                         u"*3. Reference Numerals (Possible Errors)*"_s,
                                         u"- Reference Numerals 12 appear to be missing."_s}));
}

TEST_F(ErrorReportTest, with_only_a_main_element_missing_the_other_heads_read_verified) {
    lists.missingMainElements.add(u"hinge"_s, {0, 0});
    EXPECT_EQ(
        paragraphs(),
        QStringList({u"Error Report"_s, u"*1. Main Elements (Possible Errors)*"_s, u"- hinge"_s,
                     u"*2.Sub-Elements (Verified)*"_s, u"*3. Reference Numerals (Verified)*"_s}));
}

TEST_F(ErrorReportTest, with_nothing_missing_all_heads_read_verified) {
    EXPECT_EQ(paragraphs(), QStringList({u"Error Report"_s, u"*1. Main Elements (Verified)*"_s,
                                         u"*2.Sub-Elements (Verified)*"_s,
                                         u"*3. Reference Numerals (Verified)*"_s}));
}

TEST_F(ErrorReportTest, no_mark_of_the_template_is_left_in_the_page) {
    EXPECT_FALSE(page().contains(u'['));
    EXPECT_FALSE(page().contains(u"&lt;!--"_s));
    lists.missingMainElements.add(u"hinge"_s, {0, 0});
    lists.missingSubElements.add(u"pin"_s, {0, 1});
    lists.missingNumerals.add(u"10"_s, {0, 0});
    EXPECT_FALSE(page().contains(u'['));
    EXPECT_FALSE(page().contains(u"&lt;!--"_s));
}

TEST_F(ErrorReportTest, rendered_entries_are_separated_by_a_blank) {
    lists.missingSubElements.add(u"pin"_s, {0, 1});
    lists.missingSubElements.add(u"leaf"_s, {0, 2});
    EXPECT_TRUE(page().contains(u"- pin</p>\r\n   \r\n  <p class=\"entry\">- leaf</p>"_s));
}

TEST_F(ErrorReportTest, an_entry_with_a_line_end_is_two_lines) {
    lists.missingSubElements.add(u"hinge\r\npin"_s, {0, 1});
    EXPECT_TRUE(paragraphs().contains(u"- hinge"_s));
    EXPECT_TRUE(paragraphs().contains(u"- pin"_s));
}

TEST_F(ErrorReportTest, every_blank_of_a_name_stands_in_the_page) {
    lists.missingMainElements.add(u"hinge  pin"_s, {0, 0});
    EXPECT_TRUE(paragraphs().contains(u"- hinge  pin"_s));
    EXPECT_TRUE(page().contains(u"white-space:pre-wrap"_s));
}

TEST_F(ErrorReportTest, the_body_tag_keeps_its_language_and_its_locks) {
    EXPECT_TRUE(page().contains(
        u"<body lang=ZH-CN style='tab-interval:21.0pt;text-justify-trim:punctuation' "
        "onselectstart='return false' oncopy='document.selection.empty()' "
        "onbeforecopy='return false' ondragstart='return false' oncontextmenu='return false'>"_s));
}

TEST_F(ErrorReportTest, the_page_is_utf_8_and_loads_nothing) {
    lists.missingMainElements.add(u"charnière"_s, {0, 0});
    EXPECT_TRUE(page().contains(u"<meta charset=\"utf-8\">"_s));
    EXPECT_TRUE(page().contains(u"default-src 'none'"_s));
    EXPECT_TRUE(page().contains(u"- charnière"_s));
}

TEST_F(ErrorReportTest, composing_twice_gives_the_same_page) {
    lists.missingMainElements.add(u"hinge"_s, {0, 0});
    const QString first = page();
    EXPECT_EQ(page(), first);
}

TEST_F(ErrorReportTest, a_failure_ends_with_false_and_leaves_the_text_alone) {
    folders.temporary = folder.filePath(u"missing"_s);
    QString html = u"before"_s;
    EXPECT_FALSE(composer.ExportToErrorReport(html));
    EXPECT_EQ(html, u"before"_s);
    ASSERT_TRUE(composer.failure());
    EXPECT_TRUE(composer.failure()->source().startsWith(folders.temporary));
    EXPECT_TRUE(prompts.boxes.empty());
}
