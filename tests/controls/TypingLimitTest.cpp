#include "controls/TypingLimit.h"

#include "support/PrintQt.h"

#include <QInputMethodEvent>
#include <QKeyEvent>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

QKeyEvent key(const QString& text, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    return {QEvent::KeyPress, 0, modifiers, text};
}

} // namespace

TEST(TypingLimitTest, without_a_limit_everything_fits) {
    EXPECT_EQ(TypingLimit().fitting(QString(70000, u'x'), 1000000).size(), 70000);
    EXPECT_FALSE(TypingLimit().refuses(key(u"a"_s), 1000000));
}

TEST(TypingLimitTest, the_beginning_of_an_insertion_fits) {
    EXPECT_EQ(TypingLimit(5).fitting(u"abcdef"_s, 2), u"abc"_s);
    EXPECT_EQ(TypingLimit(5).fitting(u"abc"_s, 2), u"abc"_s);
    EXPECT_EQ(TypingLimit(5).fitting(u"abc"_s, 5), QString());
}

TEST(TypingLimitTest, nothing_fits_beside_a_text_that_is_over_the_limit_already) {
    EXPECT_EQ(TypingLimit(5).fitting(u"abc"_s, 9), QString());
}

TEST(TypingLimitTest, a_character_of_two_units_is_not_cut_in_halves) {
    EXPECT_EQ(TypingLimit(3).fitting(u"ab\U0001F527"_s, 0), u"ab"_s);
    EXPECT_EQ(TypingLimit(4).fitting(u"ab\U0001F527c"_s, 0), u"ab\U0001F527"_s);
}

TEST(TypingLimitTest, keys_that_type_are_refused_and_others_are_not) {
    const TypingLimit full(5);
    EXPECT_TRUE(full.refuses(key(u"a"_s), 5));
    EXPECT_TRUE(full.refuses(key(u" "_s), 5));
    EXPECT_TRUE(full.refuses(key(u"\U0001F527"_s), 4));
    EXPECT_TRUE(full.refuses(key(u"@"_s, Qt::ControlModifier | Qt::AltModifier), 5)) << "AltGr";
    EXPECT_FALSE(full.refuses(key(u"a"_s), 4));
    EXPECT_FALSE(full.refuses(key(u"\b"_s), 5));
    EXPECT_FALSE(full.refuses(key(QString()), 5)) << "a cursor key";
    EXPECT_FALSE(full.refuses(key(u"c"_s, Qt::ControlModifier), 5));
}

TEST(TypingLimitTest, an_input_method_replaces_as_much_as_it_takes_away) {
    QInputMethodEvent event;
    event.setCommitString(u"abcdef"_s, -2, 2);
    TypingLimit(5).cut(event, 4);
    EXPECT_EQ(event.commitString(), u"abc"_s);
    EXPECT_EQ(event.replacementStart(), -2);
    EXPECT_EQ(event.replacementLength(), 2);
}
