#include "controls/FormCombo.h"

#include "controls/Theme.h"
#include "support/PrintQt.h"

#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class FormComboTest : public testing::Test {
protected:
    FormComboTest() {
        combo.setTyping(true);
        combo.addItems({u"AK"_s, u"AL"_s, u"OR"_s});
        combo.resize(120, 24);
        other.move(0, 60);
        window.resize(300, 120);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        combo.setFocus();
    }

    QWidget window;
    FormCombo combo{&window};
    QLineEdit other{&window};
    QSignalSpy edits{&combo, &FormCombo::edited};
    QSignalSpy choices{&combo, &FormCombo::chosen};
};

} // namespace

TEST_F(FormComboTest, typing_is_told_at_each_key_and_never_completed) {
    combo.showText({});
    QTest::keyClicks(combo.lineEdit(), u"ak"_s);
    EXPECT_EQ(combo.text(), u"ak"_s);
    ASSERT_EQ(edits.count(), 2);
    EXPECT_EQ(edits.last().first().toString(), u"ak"_s);
    EXPECT_EQ(choices.count(), 0);
}

TEST_F(FormComboTest, enter_neither_adds_a_row_nor_takes_one_that_differs_in_case) {
    combo.showText({});
    QTest::keyClicks(combo.lineEdit(), u"ak"_s);
    QTest::keyClick(combo.lineEdit(), Qt::Key_Return);
    EXPECT_EQ(combo.count(), 3);
    EXPECT_EQ(combo.text(), u"ak"_s);
}

TEST_F(FormComboTest, losing_the_focus_keeps_what_was_typed) {
    combo.showText({});
    QTest::keyClicks(combo.lineEdit(), u"al"_s);
    other.setFocus();
    EXPECT_EQ(combo.text(), u"al"_s);
}

TEST_F(FormComboTest, the_wheel_passes_it_by) {
    combo.showText(u"AL"_s);
    QWheelEvent notch(QPointF(5, 5), combo.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&combo, &notch);
    EXPECT_EQ(combo.text(), u"AL"_s);
    EXPECT_EQ(edits.count(), 0);
}

TEST_F(FormComboTest, another_row_is_an_edit_and_then_a_choice) {
    combo.showText(u"AK"_s);
    QTest::keyClick(&combo, Qt::Key_Down);
    ASSERT_EQ(edits.count(), 1);
    EXPECT_EQ(edits.last().first().toString(), u"AL"_s);
    EXPECT_EQ(choices.count(), 1);
}

TEST_F(FormComboTest, the_row_that_stands_already_is_a_choice_and_no_edit) {
    combo.showText(u"AL"_s);
    Q_EMIT combo.activated(combo.currentIndex());
    EXPECT_EQ(edits.count(), 0);
    EXPECT_EQ(choices.count(), 1);
}

TEST_F(FormComboTest, showing_a_text_tells_nobody) {
    combo.showText(u"OR"_s);
    EXPECT_EQ(combo.currentIndex(), 2);
    combo.showText(u"Oregon"_s);
    EXPECT_EQ(combo.text(), u"Oregon"_s);
    EXPECT_EQ(edits.count() + choices.count(), 0);
}

TEST_F(FormComboTest, a_list_without_typing_shows_a_row_or_none) {
    FormCombo list;
    list.setTyping(false);
    list.addItems({u"1"_s, u"2"_s});
    list.showText(u"2"_s);
    EXPECT_EQ(list.text(), u"2"_s);
    list.showText(u"7"_s);
    EXPECT_EQ(list.currentIndex(), -1);
    EXPECT_EQ(list.text(), QString());
}

TEST_F(FormComboTest, the_tint_is_its_ground_and_can_be_taken_away) {
    combo.setTint(true);
    EXPECT_EQ(combo.palette().color(QPalette::Base), theme::Tint);
    combo.setTint(false);
    EXPECT_EQ(combo.palette().color(QPalette::Base), theme::White);
}
