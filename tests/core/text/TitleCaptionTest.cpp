#include "core/text/TitleCaption.h"

#include "support/FakeTextMeasure.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

QString caption(const QString& fileNo, const QString& title) {
    const FakeTextMeasure measure;
    return titleInventionCaption(fileNo, title, measure);
}

} // namespace

TEST(TitleCaptionTest, shows_the_file_number_and_the_title_together) {
    EXPECT_EQ(caption(u" QF-101 "_s, u" Folding Easel"_s), u"(QF-101: Folding Easel)");
}

TEST(TitleCaptionTest, shows_one_of_them_alone) {
    EXPECT_EQ(caption(u"QF-101"_s, u"   "_s), u"(QF-101)");
    EXPECT_EQ(caption(QString(), u"Folding Easel"_s), u"(Folding Easel)");
}

TEST(TitleCaptionTest, is_empty_when_both_are_blank) {
    EXPECT_EQ(caption(u" "_s, QString()), u"");
}

TEST(TitleCaptionTest, widens_a_colon_within_the_title) {
    EXPECT_EQ(caption(u"QF"_s, u"Clip:Pencil"_s), u"(QF: Clip: Pencil)");
}

TEST(TitleCaptionTest, leaves_a_colon_alone_where_there_is_only_one_text) {
    EXPECT_EQ(caption(QString(), u"Clip:Pencil"_s), u"(Clip:Pencil)");
}

TEST(TitleCaptionTest, ends_a_long_title_in_dots_inside_the_brackets) {
    const QString title(100, u'x');
    EXPECT_EQ(caption(u"QF"_s, title), u"(QF: "_s + QString(50, u'x') + u"...)"_s);
    EXPECT_EQ(caption(QString(), title), u'(' + QString(53, u'x') + u"...)"_s);
}
