#include "controls/LineField.h"

#include "controls/Theme.h"
#include "support/PrintQt.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Takes a drop without the drag that comes before it.
class OpenField final : public LineField {
public:
    using LineField::dropEvent;
};

class LineFieldTest : public testing::Test {
protected:
    LineFieldTest() {
        field.resize(300, 24);
        field.show();
        field.setFocus();
    }

    void paste(const QString& text) {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    }

    void drop(const QString& text) {
        QMimeData data;
        data.setText(text);
        QDropEvent event(QPointF(2, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        field.dropEvent(&event);
    }

    OpenField field;
    QSignalSpy edits{&field, &LineField::edited};
};

} // namespace

TEST_F(LineFieldTest, typing_is_told_and_showing_a_text_is_not) {
    field.showText(u"easel"_s);
    EXPECT_EQ(edits.count(), 0);
    QTest::keyClicks(&field, u"a"_s);
    ASSERT_EQ(edits.count(), 1);
    EXPECT_EQ(edits.last().first().toString(), field.text());
}

TEST_F(LineFieldTest, a_text_is_shown_from_its_beginning_and_while_typing_from_where_the_user_is) {
    LineField other;
    other.showText(u"lid"_s);
    EXPECT_EQ(other.cursorPosition(), 0);
    QApplication::setActiveWindow(&field);
    QTest::keyClicks(&field, u"  hinge"_s);
    QTest::keyClick(&field, Qt::Key_Left);
    field.showText(u"hinge"_s); // without the blanks at its ends
    QTest::keyClicks(&field, u"x"_s);
    EXPECT_EQ(field.text(), u"hingxe"_s);
    field.showText(u""_s);
    EXPECT_EQ(field.cursorPosition(), 0);
}

TEST_F(LineFieldTest, a_line_end_that_is_pasted_becomes_one_blank) {
    paste(u"a\r\nb\nc\rd\u2028e\u2029f"_s);
    EXPECT_EQ(field.text(), u"a b c d e f"_s);
    EXPECT_EQ(edits.count(), 1);
}

TEST_F(LineFieldTest, a_line_end_that_is_pasted_from_the_menu_becomes_a_blank) {
    QApplication::clipboard()->setText(u"a\nb"_s);
    QTimer::singleShot(0, [] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction* action : menu->actions())
            if (action->text().contains(u"Paste"_s))
                action->trigger();
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, field.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&field, &event);
    EXPECT_EQ(field.text(), u"a b"_s);
    EXPECT_EQ(edits.count(), 1);
}

TEST_F(LineFieldTest, other_control_characters_are_pasted_as_they_are) {
    const QString odd = u"a\tb\u0001c\u007fd\u00a0e\u0301\u05d0\u200f\U0001F527"_s;
    paste(odd);
    EXPECT_EQ(field.text(), odd);
    const QString withNull = u"a"_s + QChar(0) + u"b"_s;
    field.clear();
    paste(withNull);
    EXPECT_EQ(field.text(), withNull);
}

TEST_F(LineFieldTest, a_line_end_that_is_dropped_becomes_a_blank) {
    drop(u"a\nb"_s);
    EXPECT_EQ(field.text(), u"a b"_s);
}

TEST_F(LineFieldTest, the_limit_binds_typing_pasting_and_dropping) {
    field.setLimit(5);
    QTest::keyClicks(&field, u"abcdefg"_s);
    EXPECT_EQ(field.text(), u"abcde"_s);
    field.selectAll();
    paste(u"123456"_s);
    EXPECT_EQ(field.text(), u"12345"_s);
    drop(u"x"_s);
    EXPECT_EQ(field.text(), u"12345"_s);
}

TEST_F(LineFieldTest, the_limit_binds_an_input_method) {
    field.setLimit(3);
    QInputMethodEvent event;
    event.setCommitString(u"\u3042\u3044\u3046\u3048"_s);
    QCoreApplication::sendEvent(&field, &event);
    EXPECT_EQ(field.text(), u"\u3042\u3044\u3046"_s);
}

TEST_F(LineFieldTest, a_selection_makes_room_in_a_full_field) {
    field.setLimit(3);
    field.showText(u"abc"_s);
    field.setSelection(1, 1);
    QTest::keyClicks(&field, u"x"_s);
    EXPECT_EQ(field.text(), u"axc"_s);
}

TEST_F(LineFieldTest, a_text_over_the_limit_is_shown_whole_and_can_be_shortened) {
    field.setLimit(3);
    field.showText(u"abcdef"_s);
    EXPECT_EQ(field.text(), u"abcdef"_s);
    QTest::keyClick(&field, Qt::Key_End);
    QTest::keyClicks(&field, u"x"_s);
    EXPECT_EQ(field.text(), u"abcdef"_s);
    QTest::keyClick(&field, Qt::Key_Backspace);
    EXPECT_EQ(field.text(), u"abcde"_s);
}

TEST_F(LineFieldTest, a_limit_that_comes_later_cuts_nothing) {
    field.showText(u"abcdef"_s);
    field.setLimit(3);
    EXPECT_EQ(field.text(), u"abcdef"_s);
}

TEST_F(LineFieldTest, what_was_pasted_is_taken_back_in_one_step) {
    field.setLimit(5);
    QTest::keyClicks(&field, u"ab"_s);
    paste(u"1\n23456"_s);
    EXPECT_EQ(field.text(), u"ab1 2"_s);
    QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(field.text(), u"ab"_s);
}

TEST_F(LineFieldTest, a_megabyte_is_kept) {
    const QString text = u"hinged tripod "_s.repeated(80000);
    field.showText(text);
    EXPECT_EQ(field.text(), text);
    field.clear();
    paste(text);
    EXPECT_EQ(field.text(), text);
}

TEST_F(LineFieldTest, a_field_for_reading_takes_no_paste) {
    field.setReadOnly(true);
    paste(u"a"_s);
    EXPECT_EQ(field.text(), QString());
}

TEST_F(LineFieldTest, the_tint_comes_and_goes) {
    const QColor white = field.palette().color(QPalette::Base);
    field.setTint(true);
    EXPECT_EQ(field.palette().color(QPalette::Base), QColor(231, 242, 255));
    field.setTint(false);
    EXPECT_EQ(field.palette().color(QPalette::Base), white);
}
