#include "controls/TextField.h"

#include "support/PrintQt.h"

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class TextFieldTest : public testing::Test {
protected:
    TextFieldTest() {
        field.resize(300, 60);
        field.show();
        field.setFocus();
    }

    void paste(const QString& text) {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    }

    TextField field;
    QSignalSpy edits{&field, &TextField::edited};
};

} // namespace

TEST_F(TextFieldTest, typing_is_told_and_showing_a_text_is_not) {
    field.showText(u"one\ntwo"_s);
    EXPECT_EQ(edits.count(), 0);
    QTest::keyClicks(&field, u"a"_s);
    ASSERT_EQ(edits.count(), 1);
    EXPECT_EQ(edits.last().first().toString(), u"aone\ntwo"_s);
}

TEST_F(TextFieldTest, enter_adds_a_line_feed_with_shift_or_without) {
    QTest::keyClicks(&field, u"a"_s);
    QTest::keyClick(&field, Qt::Key_Return);
    QTest::keyClick(&field, Qt::Key_Enter, Qt::KeypadModifier);
    QTest::keyClick(&field, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(&field, u"b"_s);
    EXPECT_EQ(field.text(), u"a\n\n\nb"_s);
}

TEST_F(TextFieldTest, a_swallowed_enter_adds_nothing_and_a_pasted_line_end_is_kept) {
    field.setEnterSwallowed(true);
    for (const Qt::KeyboardModifier modifier : {Qt::NoModifier, Qt::ShiftModifier})
        QTest::keyClick(&field, Qt::Key_Return, modifier);
    QTest::keyClick(&field, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(field.text(), QString());
    EXPECT_EQ(edits.count(), 0);
    paste(u"a\nb"_s);
    EXPECT_EQ(field.text(), u"a\nb"_s);
}

TEST_F(TextFieldTest, every_line_end_that_is_pasted_becomes_a_line_feed) {
    paste(u"a\r\nb\rc\u2029d\n\ne"_s);
    EXPECT_EQ(field.text(), u"a\nb\nc\nd\n\ne"_s);
}

TEST_F(TextFieldTest, other_characters_are_kept_as_they_are) {
    const QString odd =
        u"a\tb\u0001c\u007fd\u00a0e\u0301\u2028f\u05d0\u200f\u0600\U0001F527\ufffc"_s;
    const QString withNull = odd + QChar(0) + u"b"_s;
    field.showText(withNull);
    EXPECT_EQ(field.text(), withNull);
    field.selectAll();
    paste(odd);
    EXPECT_EQ(field.text(), odd);
    QTest::keyClicks(&field, u"x"_s);
    EXPECT_EQ(field.text(), odd + u'x');
}

TEST_F(TextFieldTest, what_is_copied_is_the_plain_text_exactly) {
    field.showText(u"a\u00a0b\nc"_s);
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_C, Qt::ControlModifier);
    const QMimeData* copied = QApplication::clipboard()->mimeData();
    EXPECT_EQ(copied->text(), u"a\u00a0b\nc"_s);
    EXPECT_FALSE(copied->hasHtml());
}

TEST_F(TextFieldTest, rich_text_is_pasted_as_plain_text) {
    auto* rich = new QMimeData;
    rich->setHtml(u"<b>bold</b>"_s);
    rich->setText(u"plain"_s);
    QApplication::clipboard()->setMimeData(rich);
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(field.text(), u"plain"_s);
}

TEST_F(TextFieldTest, tab_leaves_the_field) {
    QWidget form;
    QVBoxLayout layout(&form);
    TextField first;
    TextField second;
    layout.addWidget(&first);
    layout.addWidget(&second);
    form.show();
    QApplication::setActiveWindow(&form);
    first.setFocus();
    QTest::keyClick(&first, Qt::Key_Tab);
    EXPECT_TRUE(second.hasFocus());
    EXPECT_EQ(first.text(), QString());
}

TEST_F(TextFieldTest, the_limit_binds_typing_pasting_and_input_methods) {
    field.setLimit(4);
    QTest::keyClicks(&field, u"ab"_s);
    QTest::keyClick(&field, Qt::Key_Return);
    QTest::keyClicks(&field, u"cdef"_s);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(field.text(), u"ab\nc"_s);
    field.selectAll();
    paste(u"123456"_s);
    EXPECT_EQ(field.text(), u"1234"_s);
    QInputMethodEvent event;
    event.setCommitString(u"\u3042"_s);
    QCoreApplication::sendEvent(&field, &event);
    EXPECT_EQ(field.text(), u"1234"_s);
}

TEST_F(TextFieldTest, a_text_over_the_limit_is_shown_whole) {
    field.setLimit(3);
    field.showText(u"abcdef"_s);
    EXPECT_EQ(field.text(), u"abcdef"_s);
    QTest::keyClicks(&field, u"x"_s);
    EXPECT_EQ(field.text(), u"abcdef"_s);
}

TEST_F(TextFieldTest, a_run_of_more_than_two_thousand_characters_wraps_anywhere) {
    field.showText(QString(2000, u'x') + u' ' + QString(2000, u'x'));
    EXPECT_EQ(field.wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
    paste(u"x"_s);
    EXPECT_EQ(field.wordWrapMode(), QTextOption::WrapAnywhere);
    field.showText(u"short"_s);
    EXPECT_EQ(field.wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
}

TEST_F(TextFieldTest, a_long_run_that_is_taken_away_and_back_does_not_stop_the_program) {
    QElapsedTimer time;
    time.start();
    paste(QString(1 << 20, u'x'));
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(field.text().size(), 1 << 20);
    EXPECT_LT(time.elapsed(), 10000);
}

TEST_F(TextFieldTest, showing_a_text_forgets_what_could_be_taken_back) {
    QTest::keyClicks(&field, u"old"_s);
    field.showText(u"new"_s);
    QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(field.text(), u"new"_s);
}

TEST_F(TextFieldTest, the_tint_comes_and_goes) {
    const QColor white = field.palette().color(QPalette::Base);
    field.setTint(true);
    EXPECT_EQ(field.palette().color(QPalette::Base), QColor(231, 242, 255));
    field.setTint(false);
    EXPECT_EQ(field.palette().color(QPalette::Base), white);
}
