#include "shell/WelcomePage.h"

#include "controls/ClickLabel.h"
#include "shell/FormFixture.h"

#include <QPointer>
#include <QSignalSpy>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class WelcomePageTest : public FormFixture {
protected:
    WelcomePageTest() { page.show(); }

    [[nodiscard]] ClickLabel& row(int number) {
        return control<ClickLabel>(u"lblRecentPatents(%1)"_s.arg(number));
    }

    void click(const QString& name) { QTest::mouseClick(&control(name), Qt::LeftButton); }

    WelcomePage& page = form.welcome();
    QWidget& more = control(u"imgMoreObjects"_s);
    QSignalSpy news{&page, &WelcomePage::newWanted};
    QSignalSpy opens{&page, &WelcomePage::openWanted};
    QSignalSpy recent{&page, &WelcomePage::recentWanted};
};

} // namespace

TEST_F(WelcomePageTest, the_page_lies_over_tabs_sections_and_buttons) {
    EXPECT_TRUE(page.page().isVisible() && page.page().isEnabled());
    for (const QString& covered : {u"picTab(0)"_s, u"picFrame"_s, u"picBtnStepContainer"_s,
                                   u"picHelpOn"_s, u"picIndexContainer"_s}) {
        const QPoint place = control(covered).geometry().center();
        EXPECT_TRUE(page.page().geometry().contains(control(covered).geometry()));
        const QWidget* seen = form.childAt(place);
        EXPECT_TRUE(seen == &page.page() || page.page().isAncestorOf(seen)) << qPrintable(covered);
    }
    EXPECT_FALSE(page.page().geometry().intersects(control(u"lblMenuFile"_s).geometry()));
}

TEST_F(WelcomePageTest, a_hidden_page_is_disabled_too) {
    page.hide();
    EXPECT_FALSE(page.page().isVisible());
    EXPECT_FALSE(page.page().isEnabled());
}

TEST_F(WelcomePageTest, the_first_row_and_its_picture_begin_a_new_project) {
    click(u"lblRecentPatents(0)"_s);
    click(u"imgWelcomeButton(0)"_s);
    EXPECT_EQ(news.count(), 2);
    EXPECT_EQ(opens.count() + recent.count(), 0);
}

TEST_F(WelcomePageTest, the_last_row_and_its_picture_open_another_project) {
    click(u"imgMoreObjects"_s);
    click(u"imgWelcomeButton(1)"_s);
    EXPECT_EQ(opens.count(), 2);
    EXPECT_EQ(news.count() + recent.count(), 0);
}

TEST_F(WelcomePageTest, each_recent_project_has_a_row_that_tells_its_number) {
    page.setRecentProjects({u"easel"_s, u"clip"_s, u"bench"_s});
    EXPECT_EQ(row(1).text(), u"easel"_s);
    EXPECT_EQ(row(3).text(), u"bench"_s);
    QTest::mouseClick(&row(2), Qt::LeftButton);
    ASSERT_EQ(recent.count(), 1);
    EXPECT_EQ(recent.first().first().toInt(), 2);
}

TEST_F(WelcomePageTest, what_opens_another_project_stands_under_the_last_row) {
    const int top = more.y();
    page.setRecentProjects({u"easel"_s, u"clip"_s});
    EXPECT_GT(more.y(), row(2).geometry().bottom());
    EXPECT_EQ(more.y() - row(2).y(), row(2).y() - row(1).y());
    EXPECT_EQ(more.x(), row(1).x());
    page.setRecentProjects({});
    EXPECT_EQ(more.y(), top);
}

TEST_F(WelcomePageTest, five_rows_still_stand_within_their_frame) {
    page.setRecentProjects(QList<QString>(5, u"project"_s));
    EXPECT_LT(more.geometry().bottom(), control(u"shpWelcomeStart"_s).geometry().bottom());
}

TEST_F(WelcomePageTest, a_shorter_list_drops_rows) {
    page.setRecentProjects({u"easel"_s, u"clip"_s});
    page.setRecentProjects({u"clip"_s});
    EXPECT_EQ(row(1).text(), u"clip"_s);
    EXPECT_FALSE(form.findChild<QWidget*>(u"lblRecentPatents(2)"_s));
    EXPECT_TRUE(form.findChild<QWidget*>(u"lblRecentPatents(0)"_s)) << "the first row always stays";
}

TEST_F(WelcomePageTest, a_row_that_its_own_click_drops_stands_until_the_click_is_over) {
    page.setRecentProjects({u"easel"_s});
    const QPointer<ClickLabel> clicked(&row(1));
    bool stood = false;
    QObject::connect(&page, &WelcomePage::recentWanted, &form, [&] {
        page.setRecentProjects({});
        stood = clicked;
    });
    QTest::mouseClick(clicked, Qt::LeftButton);
    EXPECT_TRUE(stood);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(clicked);
}

TEST_F(WelcomePageTest, a_name_that_is_too_long_is_cut_in_its_middle_and_told_whole_on_demand) {
    const QString name = u"a very long name of a project "_s.repeated(6) + u"end"_s;
    page.setRecentProjects({name});
    EXPECT_LT(row(1).text().size(), name.size());
    EXPECT_TRUE(row(1).text().endsWith(u"end"_s));
    EXPECT_EQ(row(1).toolTip(), name);
    EXPECT_EQ(row(1).accessibleName(), name);
}

TEST_F(WelcomePageTest, a_name_that_looks_like_markup_is_shown_as_it_stands) {
    page.setRecentProjects({u"<b>x</b>"_s});
    EXPECT_EQ(row(1).text(), u"<b>x</b>"_s);
    EXPECT_EQ(row(1).textFormat(), Qt::PlainText);
}

TEST_F(WelcomePageTest, the_rows_are_reached_by_the_tab_key_and_pressed_by_enter) {
    page.setRecentProjects({u"easel"_s});
    EXPECT_TRUE(row(0).hasFocus()) << "the page begins there";
    QTest::keyClick(&row(0), Qt::Key_Return);
    EXPECT_EQ(news.count(), 1);
    row(1).setFocus();
    QTest::keyClick(&row(1), Qt::Key_Space);
    EXPECT_EQ(recent.count(), 1);
}
