#include "shell/HelpPane.h"

#include "controls/Picture.h"
#include "shell/FormFixture.h"
#include "support/Files.h"

#include <QSignalSpy>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class HelpPaneTest : public FormFixture {
protected:
    HelpPaneTest() {
        for (int tab = 0; tab < 2; ++tab)
            writeFile(page(tab, u"index.htm"_s), "<p>Start " + QByteArray::number(tab + 1) +
                                                     "</p><p><a href=\"more.htm\">more</a></p>");
        writeFile(page(0, u"more.htm"_s), "<p>More</p><p><a href=\"third.htm\">third</a></p>");
        writeFile(page(0, u"third.htm"_s), "<p>Third</p>");
    }

    [[nodiscard]] QString page(int tab, const QString& name) const {
        return u"%1/help/Section %2/%3"_s.arg(programFolder.path()).arg(tab + 1).arg(name);
    }

    /// Clicks the first link of the page, which stands alone in its line.
    void follow() {
        help.view().setFocus();
        QTextCursor cursor = help.view().textCursor();
        cursor.movePosition(QTextCursor::End);
        help.view().setTextCursor(cursor);
        const QPoint place = help.view().cursorRect().center() - QPoint(6, 0);
        QTest::mouseClick(help.view().viewport(), Qt::LeftButton, {}, place);
    }

    [[nodiscard]] QString text() { return help.view().toPlainText(); }

    [[nodiscard]] bool isBackActive() {
        const bool picture = control<Picture>(u"picHelpOnBack"_s).file() == u"HELPBACK"_s;
        const bool caption = control(u"lblBack"_s).isEnabled();
        const bool hand = control(u"lblBackClick"_s).cursor().shape() == Qt::BitmapCursor;
        EXPECT_EQ(picture, caption);
        EXPECT_EQ(picture, hand);
        return picture;
    }

    void clickBack() { QTest::mouseClick(&control(u"lblBackClick"_s), Qt::LeftButton); }

    HelpPane& help = form.help();
};

} // namespace

TEST_F(HelpPaneTest, the_start_page_of_a_tab_is_shown_with_back_greyed) {
    help.HelpOn(0);
    EXPECT_TRUE(text().startsWith(u"Start 1"_s)) << qPrintable(text());
    EXPECT_FALSE(isBackActive());
    EXPECT_EQ(control<Picture>(u"picHelpOnBack"_s).file(), u"HELPBACKGRAY"_s);
    EXPECT_TRUE(control(u"imgHelpPrint"_s).isEnabled());
}

TEST_F(HelpPaneTest, a_link_makes_back_active_and_back_returns_and_greys_itself_again) {
    help.HelpOn(0);
    follow();
    EXPECT_TRUE(text().startsWith(u"More"_s)) << qPrintable(text());
    EXPECT_TRUE(isBackActive());
    clickBack();
    EXPECT_TRUE(text().startsWith(u"Start 1"_s));
    EXPECT_FALSE(isBackActive());
}

TEST_F(HelpPaneTest, the_picture_of_back_goes_back_as_well) {
    help.HelpOn(0);
    follow();
    QTest::mouseClick(&control(u"picHelpOnBack"_s), Qt::LeftButton);
    EXPECT_TRUE(text().startsWith(u"Start 1"_s));
}

TEST_F(HelpPaneTest, back_goes_one_page_at_a_time) {
    help.HelpOn(0);
    follow();
    follow();
    EXPECT_EQ(text(), u"Third"_s);
    clickBack();
    EXPECT_TRUE(text().startsWith(u"More"_s));
    EXPECT_TRUE(isBackActive());
}

TEST_F(HelpPaneTest, on_the_start_page_back_does_nothing) {
    help.HelpOn(1);
    help.HelpOn(0);
    clickBack();
    EXPECT_TRUE(text().startsWith(u"Start 1"_s));
}

TEST_F(HelpPaneTest, the_keys_of_a_browser_lead_to_no_other_tab_s_help) {
    help.HelpOn(1);
    help.HelpOn(0);
    QTest::keyClick(&help.view(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(text().startsWith(u"Start 1"_s)) << qPrintable(text());
    follow();
    QTest::keyClick(&help.view(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(text().startsWith(u"Start 1"_s));
    EXPECT_FALSE(isBackActive());
}

TEST_F(HelpPaneTest, a_switch_from_a_second_page_goes_straight_to_the_new_start_page) {
    help.HelpOn(0);
    follow();
    help.HelpOn(1);
    EXPECT_TRUE(text().startsWith(u"Start 2"_s));
    EXPECT_FALSE(isBackActive());
}

TEST_F(HelpPaneTest, the_start_page_is_shown_again_after_a_second_page_of_the_same_tab) {
    help.HelpOn(0);
    follow();
    help.HelpOn(0);
    EXPECT_TRUE(text().startsWith(u"Start 1"_s));
    EXPECT_FALSE(isBackActive());
}

TEST_F(HelpPaneTest, any_page_whose_name_holds_that_of_a_start_page_counts_as_one) {
    writeFile(page(0, u"more.htm"_s), "<a href=\"second-index.html\">on</a>");
    writeFile(page(0, u"second-index.html"_s), "<p>Second index</p>");
    help.HelpOn(0);
    follow();
    EXPECT_TRUE(isBackActive());
    follow();
    EXPECT_EQ(text(), u"Second index"_s);
    EXPECT_FALSE(isBackActive());
    clickBack();
    EXPECT_EQ(text(), u"Second index"_s);
}

TEST_F(HelpPaneTest, a_missing_page_tells_the_name_of_its_file) {
    help.HelpOn(8);
    EXPECT_TRUE(text().contains(u"Section 9/index.htm"_s)) << qPrintable(text());
}

TEST_F(HelpPaneTest, the_print_picture_asks_for_a_print) {
    QSignalSpy prints(&help, &HelpPane::imgHelpPrint_Click);
    help.HelpOn(0);
    EXPECT_EQ(control(u"imgHelpPrint"_s).cursor().shape(), Qt::BitmapCursor);
    QTest::mouseClick(&control(u"imgHelpPrint"_s), Qt::LeftButton);
    EXPECT_EQ(prints.count(), 1);
}

TEST_F(HelpPaneTest, a_link_out_of_the_help_leaves_the_page_standing) {
    writeFile(page(0, u"index.htm"_s), "<p>Start 1</p><a href=\"https://example.org/\">out</a>");
    help.HelpOn(0);
    QSignalSpy leaving(&help.view(), &HtmlView::linkLeaves);
    follow();
    EXPECT_EQ(leaving.count(), 1);
    EXPECT_TRUE(text().startsWith(u"Start 1"_s));
    EXPECT_FALSE(isBackActive());
}
