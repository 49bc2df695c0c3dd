#include "controls/ClickLabel.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class ClickLabelTest : public testing::Test {
protected:
    ClickLabelTest() {
        label.resize(100, 20);
        label.show();
    }

    ClickLabel label;
    QSignalSpy clicks{&label, &ClickLabel::clicked};
};

} // namespace

TEST_F(ClickLabelTest, press_and_release_on_it_are_a_click) {
    QTest::mouseClick(&label, Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(ClickLabelTest, the_right_button_and_a_release_elsewhere_are_none) {
    QTest::mouseClick(&label, Qt::RightButton);
    QTest::mousePress(&label, Qt::LeftButton);
    QTest::mouseRelease(&label, Qt::LeftButton, {}, QPoint(300, 5));
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ClickLabelTest, space_and_enter_click_it_when_it_takes_the_focus) {
    label.setFocusPolicy(Qt::StrongFocus);
    label.setFocus();
    QTest::keyClick(&label, Qt::Key_Space);
    QTest::keyClick(&label, Qt::Key_Return);
    EXPECT_EQ(clicks.count(), 2);
}

TEST_F(ClickLabelTest, a_disabled_label_is_not_clicked) {
    label.setEnabled(false);
    label.click();
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ClickLabelTest, a_text_that_looks_like_markup_stays_a_text) {
    label.setText(u"<b>x</b>.ivd"_s);
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
}

TEST_F(ClickLabelTest, assistive_programs_see_a_button_named_by_its_text) {
    label.setText(u"Open another project ..."_s);
    QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(&label);
    ASSERT_TRUE(seen);
    EXPECT_EQ(seen->role(), QAccessible::Button);
    EXPECT_EQ(seen->text(QAccessible::Name), label.text());
}
