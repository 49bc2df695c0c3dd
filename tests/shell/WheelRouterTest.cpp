#include "shell/WheelRouter.h"

#include "support/PrintQt.h"
#include "support/TurnWheel.h"

#include <QPlainTextEdit>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class WheelRouterTest : public testing::Test {
protected:
    WheelRouterTest() {
        window.resize(500, 400);
        help.setGeometry(300, 0, 200, 200);
        helpText.setGeometry(0, 0, 200, 200);
        panel.setGeometry(0, 0, 280, 400);
        text.setGeometry(10, 10, 200, 60);
        text.setPlainText(u"line\n"_s.repeated(40));
        for (QScrollBar* bar : {&section, &index}) {
            bar->setRange(0, 250);
            bar->setPageStep(100);
            bar->setSingleStep(7);
        }
        section.setGeometry(280, 0, 16, 400);
        index.setGeometry(480, 210, 16, 180);
        new WheelRouter(window, help,
                        {[this] { return indexHasFocus ? &index : nullptr; },
                         [this] { return hasSectionBar ? &section : nullptr; }});
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QWidget window;
    QWidget panel{&window};
    QPlainTextEdit text{&panel};
    QScrollBar section{Qt::Vertical, &window};
    QWidget help{&window};
    QPlainTextEdit helpText{&help};
    QScrollBar index{Qt::Vertical, &window};
    bool indexHasFocus = false;
    bool hasSectionBar = true;
};

} // namespace

TEST_F(WheelRouterTest, a_notch_moves_the_sections_bar_by_its_large_change) {
    turnWheel(panel, NotchDown);
    EXPECT_EQ(section.value(), 100);
    turnWheel(window, NotchDown);
    EXPECT_EQ(section.value(), 200) << "the mouse may be anywhere over the form";
    turnWheel(panel, NotchUp);
    EXPECT_EQ(section.value(), 100);
    EXPECT_EQ(index.value(), 0);
}

TEST_F(WheelRouterTest, at_its_ends_the_bar_stays_at_the_limit) {
    section.setValue(200);
    turnWheel(panel, NotchDown);
    EXPECT_EQ(section.value(), 250);
    turnWheel(panel, NotchDown);
    EXPECT_EQ(section.value(), 250);
    section.setValue(40);
    turnWheel(panel, NotchUp);
    EXPECT_EQ(section.value(), 0);
    turnWheel(panel, NotchUp);
    EXPECT_EQ(section.value(), 0);
}

TEST_F(WheelRouterTest, with_the_mouse_over_the_help_pane_the_bar_is_left_alone) {
    turnWheel(help, NotchDown);
    turnWheel(helpText, NotchDown);
    EXPECT_EQ(section.value(), 0);
}

TEST_F(WheelRouterTest, with_the_focus_in_the_help_pane_the_bar_is_left_alone) {
    helpText.setFocus();
    turnWheel(panel, NotchDown);
    EXPECT_EQ(section.value(), 0);
    text.setFocus();
    turnWheel(panel, NotchDown);
    EXPECT_EQ(section.value(), 100);
}

TEST_F(WheelRouterTest, while_the_index_has_the_focus_its_bar_moves_in_place_of_the_sections) {
    indexHasFocus = true;
    turnWheel(panel, NotchDown);
    EXPECT_EQ(index.value(), 100);
    EXPECT_EQ(section.value(), 0);
}

TEST_F(WheelRouterTest, an_index_with_the_focus_and_nothing_to_scroll_takes_the_notch_for_itself) {
    indexHasFocus = true;
    index.hide();
    turnWheel(panel, NotchDown);
    EXPECT_EQ(index.value(), 0);
    EXPECT_EQ(section.value(), 0);
}

TEST_F(WheelRouterTest, a_bar_that_is_hidden_is_not_moved) {
    section.hide();
    turnWheel(panel, NotchDown);
    EXPECT_EQ(section.value(), 0);
}

TEST_F(WheelRouterTest, on_a_section_without_a_bar_no_bar_moves) {
    hasSectionBar = false;
    turnWheel(panel, NotchDown);
    EXPECT_EQ(section.value(), 0);
    EXPECT_EQ(index.value(), 0);
}

TEST_F(WheelRouterTest, fractions_of_a_notch_are_gathered) {
    for (int i = 0; i < 3; ++i)
        turnWheel(panel, NotchDown / 4);
    EXPECT_EQ(section.value(), 0);
    turnWheel(panel, NotchDown / 4);
    EXPECT_EQ(section.value(), 100);
}

TEST_F(WheelRouterTest, fractions_that_are_turned_back_come_to_nothing) {
    turnWheel(panel, NotchDown / 2);
    turnWheel(panel, NotchUp / 2);
    turnWheel(panel, NotchDown / 2);
    EXPECT_EQ(section.value(), 0);
    turnWheel(panel, NotchDown / 2);
    EXPECT_EQ(section.value(), 100);
}

TEST_F(WheelRouterTest, a_turn_over_several_notches_counts_each) {
    turnWheel(panel, 2 * NotchDown);
    EXPECT_EQ(section.value(), 200);
}

TEST_F(WheelRouterTest, a_box_of_text_that_can_still_move_keeps_the_notch) {
    turnWheel(*text.viewport(), NotchDown);
    EXPECT_GT(text.verticalScrollBar()->value(), 0);
    turnWheel(*text.viewport(), NotchDown / 8);
    EXPECT_EQ(section.value(), 0);
}

TEST_F(WheelRouterTest, at_the_end_of_a_box_of_text_the_notch_is_the_sections) {
    text.verticalScrollBar()->setValue(text.verticalScrollBar()->maximum());
    turnWheel(*text.viewport(), NotchDown);
    EXPECT_EQ(section.value(), 100);
    text.verticalScrollBar()->setValue(0);
    turnWheel(*text.viewport(), NotchUp);
    EXPECT_EQ(section.value(), 0);
    text.clear();
    turnWheel(*text.viewport(), NotchDown);
    EXPECT_EQ(section.value(), 100) << "a box whose text fits has no notch to keep";
}

TEST_F(WheelRouterTest, a_turn_to_the_side_moves_no_bar) {
    turnWheel(panel, QPoint(NotchDown, 0));
    EXPECT_EQ(section.value(), 0);
}

TEST_F(WheelRouterTest, another_window_keeps_its_notches) {
    QScrollBar other(Qt::Vertical);
    other.setRange(0, 100);
    other.show();
    turnWheel(other, NotchDown);
    EXPECT_GT(other.value(), 0);
    EXPECT_EQ(section.value(), 0);
}
