#include "controls/WrappedCaption.h"

#include "controls/Theme.h"
#include "support/PrintQt.h"

#include <QLabel>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

TEST(WrappedCaption, each_line_is_13_high) {
    const QFont font = theme::captionFont();
    EXPECT_EQ(wrappedHeight(u"Name"_s, 343, font), 13);
    EXPECT_EQ(wrappedHeight(u"first second"_s, 40, font), 26);
    EXPECT_EQ(wrappedHeight(u"first second third"_s, 40, font), 39);
}

TEST(WrappedCaption, no_text_takes_a_line) {
    EXPECT_EQ(wrappedHeight(QString(), 343, theme::captionFont()), 13);
}

TEST(WrappedCaption, a_label_of_the_same_width_wraps_at_the_same_places) {
    QLabel label;
    label.setFont(theme::captionFont());
    label.setWordWrap(true);
    QString text;
    for (int words = 1; words < 60; ++words) {
        text += QString(words % 9 + 1, u'w') + u' ';
        label.setText(text);
        EXPECT_EQ(wrappedHeight(text, 343, label.font()), label.heightForWidth(343)) << words;
    }
}
