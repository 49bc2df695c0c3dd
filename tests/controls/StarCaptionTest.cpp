#include "controls/StarCaption.h"

#include "controls/Theme.h"
#include "controls/WrappedCaption.h"
#include "support/PrintQt.h"

#include <QRegion>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// What is left visible of a caption with a star.
QRect visiblePart(const QString& text) {
    QLabel label;
    label.setFont(theme::captionFont());
    label.setWordWrap(true);
    label.setText(text);
    label.resize(343, wrappedHeight(text, 343, label.font()));
    showStarAlone(label);
    return label.mask().boundingRect();
}

} // namespace

TEST(StarCaption, the_star_stands_behind_the_text_of_one_line) {
    const QFontMetrics metrics(theme::captionFont());
    const QRect star = visiblePart(u"Detailed Description  *"_s);
    EXPECT_EQ(star.top(), 0);
    EXPECT_NEAR(star.left(), metrics.horizontalAdvance(u"Detailed Description  "_s), 1);
}

TEST(StarCaption, the_star_stands_in_the_last_line_of_several) {
    const QRect star = visiblePart(u"Detailed Description of a part "_s.repeated(5) + u" *"_s);
    EXPECT_EQ(star.top(), 26);
    EXPECT_EQ(star.height(), 13);
}
