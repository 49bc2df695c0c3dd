#include "controls/WindowDrag.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace quillford;

namespace {

class WindowDragTest : public testing::Test {
protected:
    WindowDragTest() {
        window.setWindowFlag(Qt::FramelessWindowHint);
        window.setGeometry(100, 100, 300, 200);
        strip.setGeometry(0, 0, 300, 30);
        window.show();
    }

    QWidget window;
    QWidget strip{&window};
    WindowDrag& drag = *new WindowDrag(strip);
};

} // namespace

TEST_F(WindowDragTest, the_grabbed_point_stays_under_the_pointer) {
    QTest::mousePress(&strip, Qt::LeftButton, {}, QPoint(40, 10));
    EXPECT_EQ(strip.cursor().shape(), Qt::SizeAllCursor);
    QTest::mouseMove(&strip, QPoint(65, 4));
    EXPECT_EQ(window.pos(), QPoint(125, 94));
    QTest::mouseRelease(&strip, Qt::LeftButton);
    EXPECT_EQ(strip.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(WindowDragTest, a_drag_ends_with_the_button_also_beside_the_strip) {
    QTest::mousePress(&strip, Qt::LeftButton, {}, QPoint(40, 10));
    QTest::mouseRelease(&strip, Qt::LeftButton, {}, QPoint(40, 180));
    const QPoint place = window.pos();
    QTest::mouseMove(&strip, QPoint(90, 10));
    EXPECT_EQ(window.pos(), place);
}

TEST_F(WindowDragTest, the_right_button_asks_for_the_system_menu_and_moves_nothing) {
    QSignalSpy menus(&drag, &WindowDrag::menuWanted);
    QTest::mousePress(&strip, Qt::RightButton, {}, QPoint(40, 10));
    ASSERT_EQ(menus.count(), 1);
    EXPECT_EQ(menus.first().first().toPoint(), QPoint(140, 110));
    QTest::mouseMove(&strip, QPoint(90, 10));
    EXPECT_EQ(window.pos(), QPoint(100, 100));
}

TEST_F(WindowDragTest, a_move_by_the_keyboard_puts_the_pointer_into_the_middle_of_the_strip) {
    drag.StartMove();
    EXPECT_EQ(strip.cursor().shape(), Qt::SizeAllCursor);
    EXPECT_EQ(QCursor::pos(), strip.mapToGlobal(strip.rect().center()));
}
