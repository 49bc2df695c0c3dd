#include "verification/dialogs/ReportSurface.h"

#include "support/FakeTextMeasure.h"
#include "support/PrintQt.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class ReportSurfaceTest : public testing::Test {
protected:
    ReportSurfaceTest() {
        surface.resize(400, 10);
        surface.show();
        surface.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&surface));
        surface.setFocus();
    }

    void draw() { surface.draw(layOutReport(lists, 400, measure), surface.font(), 13); }

    void drawTwo() {
        lists.missingMainElements.add(u"hinge"_s, {0, 0});
        lists.missingMainElements.add(u"leg"_s, {1, 0});
        draw();
    }

    MissingLists lists;
    FakeTextMeasure measure;
    ReportSurface surface;
    QSignalSpy activated{&surface, &ReportSurface::entryActivated};
    QSignalSpy marked{&surface, &ReportSurface::entryMarked};
};

} // namespace

TEST_F(ReportSurfaceTest, the_surface_is_as_high_as_its_report) {
    drawTwo();
    EXPECT_EQ(surface.height(), 5 * 13);
    EXPECT_EQ(surface.width(), 400);
}

TEST_F(ReportSurfaceTest, a_click_on_an_entry_activates_it_and_one_on_a_head_does_not) {
    drawTwo();
    QTest::mouseClick(&surface, Qt::LeftButton, {}, QPoint(60, 6));
    EXPECT_EQ(activated.count(), 0);
    QTest::mouseClick(&surface, Qt::LeftButton, {}, QPoint(60, 2 * 13 + 6));
    ASSERT_EQ(activated.count(), 1);
    EXPECT_EQ(activated.first().first().toLongLong(), 1);
}

TEST_F(ReportSurfaceTest, only_a_whole_click_of_the_left_button_activates) {
    drawTwo();
    const QPoint head(60, 6);
    const QPoint hinge(60, 13 + 6);
    const QPoint leg(60, 2 * 13 + 6);
    QTest::mouseClick(&surface, Qt::RightButton, {}, hinge);
    QTest::mousePress(&surface, Qt::LeftButton, {}, head);
    QTest::mouseRelease(&surface, Qt::LeftButton, {}, hinge);
    QTest::mousePress(&surface, Qt::LeftButton, {}, hinge);
    QTest::mouseRelease(&surface, Qt::LeftButton, {}, leg);
    EXPECT_EQ(activated.count(), 0);
}

TEST_F(ReportSurfaceTest, enter_activates_the_entry_that_the_arrows_have_marked) {
    drawTwo();
    QTest::keyClick(&surface, Qt::Key_Return);
    QTest::keyClick(&surface, Qt::Key_Down);
    QTest::keyClick(&surface, Qt::Key_Enter);
    QTest::keyClick(&surface, Qt::Key_Down);
    QTest::keyClick(&surface, Qt::Key_Enter);
    QTest::keyClick(&surface, Qt::Key_Up);
    QTest::keyClick(&surface, Qt::Key_Space);
    QList<qlonglong> entries;
    for (const auto& signal : activated)
        entries.append(signal.first().toLongLong());
    EXPECT_EQ(entries, (QList<qlonglong>{0, 1, 1, 0})) << "at its end the mark stays";
}

TEST_F(ReportSurfaceTest, a_mark_tells_where_it_stands) {
    drawTwo();
    QTest::keyClick(&surface, Qt::Key_Down);
    ASSERT_EQ(marked.count(), 1);
    EXPECT_EQ(marked.first()[0].toInt(), 2 * 13);
    EXPECT_EQ(marked.first()[1].toInt(), 3 * 13);
}

TEST_F(ReportSurfaceTest, the_mark_is_seen_while_the_surface_has_the_focus) {
    drawTwo();
    const QImage with = surface.grab().toImage();
    surface.clearFocus();
    EXPECT_NE(surface.grab().toImage(), with);
}

TEST_F(ReportSurfaceTest, a_report_without_entries_takes_no_keys_and_shows_no_hand) {
    draw();
    QTest::keyClick(&surface, Qt::Key_Return);
    QTest::keyClick(&surface, Qt::Key_Down);
    QTest::mouseClick(&surface, Qt::LeftButton, {}, QPoint(60, 6));
    EXPECT_EQ(activated.count() + marked.count(), 0);
    EXPECT_EQ(surface.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(ReportSurfaceTest, assistive_programs_can_read_the_whole_report) {
    drawTwo();
    EXPECT_TRUE(surface.accessibleDescription().contains(u"hinge"_s));
    EXPECT_TRUE(surface.accessibleDescription().contains(u"(Possible Errors)"_s));
}
