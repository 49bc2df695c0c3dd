#include "shell/TabWalk.h"

#include "support/PrintQt.h"

#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class TabWalkTest : public testing::Test {
protected:
    TabWalkTest() {
        window.resize(300, 200);
        for (QLineEdit* field : {&first, &second, &third})
            field->setObjectName(field == &first    ? u"first"_s
                                 : field == &second ? u"second"_s
                                                    : u"third"_s);
        // The numbers run against the places.
        first.move(0, 120);
        second.move(0, 60);
        third.move(0, 0);
        order.setTabIndex(u"first"_s, 1);
        order.setTabIndex(u"second"_s, 2);
        order.setTabIndex(u"third"_s, 3);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        first.setFocus();
    }

    [[nodiscard]] QString next() { return nameOf(nextByTab(window, order, true)); }

    [[nodiscard]] QString previous() { return nameOf(nextByTab(window, order, false)); }

    static QString nameOf(const QWidget* control) {
        return control ? control->objectName() : u"nothing"_s;
    }

    QWidget window;
    QLineEdit first{&window};
    QLineEdit second{&window};
    QLineEdit third{&window};
    FocusOrder order;
};

} // namespace

TEST_F(TabWalkTest, the_walk_follows_the_numbers_and_not_the_places) {
    EXPECT_EQ(next(), u"second"_s);
    second.setFocus();
    EXPECT_EQ(next(), u"third"_s);
}

TEST_F(TabWalkTest, the_walk_is_a_ring_in_both_directions) {
    EXPECT_EQ(previous(), u"third"_s);
    third.setFocus();
    EXPECT_EQ(next(), u"first"_s);
    EXPECT_EQ(previous(), u"second"_s);
}

TEST_F(TabWalkTest, disabled_and_hidden_controls_are_passed_over) {
    second.setEnabled(false);
    EXPECT_EQ(next(), u"third"_s);
    third.hide();
    EXPECT_EQ(next(), u"first"_s) << "alone, a control is its own next one";
}

TEST_F(TabWalkTest, a_control_on_a_disabled_or_hidden_panel_is_passed_over) {
    QWidget panel(&window);
    QLineEdit inner(&panel);
    inner.setObjectName(u"inner"_s);
    order.setTabIndex(u"inner"_s, 1);
    order.setTabIndex(u"first"_s, 0);
    panel.show();
    EXPECT_EQ(next(), u"inner"_s);
    panel.setEnabled(false);
    EXPECT_EQ(next(), u"second"_s);
    panel.setEnabled(true);
    panel.hide();
    EXPECT_EQ(next(), u"second"_s);
}

TEST_F(TabWalkTest, a_control_that_only_a_click_focuses_is_no_station) {
    second.setFocusPolicy(Qt::ClickFocus);
    EXPECT_EQ(next(), u"third"_s);
}

TEST_F(TabWalkTest, controls_without_a_number_come_last_by_row_and_column) {
    QLineEdit right(&window);
    QLineEdit left(&window);
    right.setObjectName(u"right"_s);
    left.setObjectName(u"left"_s);
    right.move(150, 30);
    left.move(20, 30);
    right.show();
    left.show();
    third.setFocus();
    EXPECT_EQ(next(), u"left"_s);
    left.setFocus();
    EXPECT_EQ(next(), u"right"_s);
    right.setFocus();
    EXPECT_EQ(next(), u"first"_s);
}

TEST_F(TabWalkTest, from_outside_the_ring_the_walk_begins_at_its_ends) {
    first.clearFocus();
    EXPECT_EQ(next(), u"first"_s);
    EXPECT_EQ(previous(), u"third"_s);
}

TEST_F(TabWalkTest, where_nothing_can_be_reached_there_is_no_next) {
    for (QLineEdit* field : {&first, &second, &third})
        field->setEnabled(false);
    EXPECT_EQ(next(), u"nothing"_s);
}

TEST_F(TabWalkTest, a_number_that_changes_counts_at_the_next_key) {
    order.setTabIndex(u"third"_s, 1);
    order.setTabIndex(u"first"_s, 0);
    EXPECT_EQ(next(), u"third"_s);
}
