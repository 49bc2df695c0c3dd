#include "controls/myImageButton.h"

#include <QAccessible>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class myImageButtonTest : public testing::Test {
protected:
    myImageButtonTest() {
        button.setCaption(u"Browse"_s);
        button.resize(80, 28);
        other.setFocusPolicy(Qt::StrongFocus);
        other.setFocus();
        window.resize(200, 100);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    [[nodiscard]] QLabel& face() { return *button.findChild<QLabel*>(u"picbutton"_s); }

    /// The pixels of the line on which the focus mark lies, inside the corners.
    [[nodiscard]] QImage markLine() {
        return button.grab().toImage().copy(6, 3, button.width() - 12, 1);
    }

    QWidget window;
    QWidget other{&window};
    myImageButton button{&window};
    QSignalSpy clicks{&button, &myImageButton::clicked};
};

} // namespace

TEST_F(myImageButtonTest,
       the_focus_draws_a_dotted_mark_three_pixels_inside_and_leaving_removes_it) {
    const QImage without = markLine();
    button.setFocus(Qt::TabFocusReason);
    const QImage with = markLine();
    EXPECT_NE(with, without);
    EXPECT_NE(with.pixel(10, 0), with.pixel(11, 0)) << "the mark is dotted";
    button.clearFocus();
    EXPECT_EQ(markLine(), without);
}

TEST_F(myImageButtonTest, a_click_counts_on_the_picture_only) {
    QTest::mouseClick(&face(), Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 1);
    QTest::mousePress(&face(), Qt::LeftButton);
    QTest::mouseRelease(&face(), Qt::LeftButton, {}, QPoint(-20, 5));
    EXPECT_EQ(clicks.count(), 1) << "the button was released beside it";
}

TEST_F(myImageButtonTest, the_picture_takes_the_whole_of_the_button) {
    button.resize(120, 40);
    EXPECT_EQ(face().geometry(), QRect(0, 0, 120, 40));
}

TEST_F(myImageButtonTest, space_and_enter_are_clicks) {
    button.setFocus();
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
        QTest::keyClick(&button, key);
    EXPECT_EQ(clicks.count(), 3);
}

TEST_F(myImageButtonTest, a_key_that_is_held_down_is_one_click) {
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Return);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
    QCoreApplication::sendEvent(&button, &repeated);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(myImageButtonTest, a_disabled_button_keeps_its_face_and_takes_no_click) {
    button.setEnabled(false);
    QTest::mouseClick(&face(), Qt::LeftButton);
    button.click();
    EXPECT_EQ(clicks.count(), 0);
    EXPECT_TRUE(face().isVisible());
}

TEST_F(myImageButtonTest, a_picture_of_its_own_is_shown_in_place_of_the_drawn_one) {
    QPixmap red(4, 4);
    red.fill(Qt::red);
    button.setButtonPicture(red);
    EXPECT_EQ(button.grab().toImage().pixelColor(40, 14), QColor(Qt::red));
}

TEST_F(myImageButtonTest, assistive_programs_see_a_button_with_its_caption_and_can_press_it) {
    QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(&button);
    ASSERT_TRUE(seen);
    EXPECT_EQ(seen->role(), QAccessible::Button);
    EXPECT_EQ(seen->text(QAccessible::Name), u"Browse"_s);
    seen->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks.count(), 1);
}
