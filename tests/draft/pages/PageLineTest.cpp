#include "draft/pages/PageLine.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>
#include <ostream>

namespace quillford {

static void PrintTo(const PageLine& line, std::ostream* out) {
    *out << line.left.toStdString() << " | " << line.centre.toStdString() << " | "
         << line.right.toStdString();
}

} // namespace quillford

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

TEST(PageLineTest, the_footer_of_the_final_draft_stands_centred) {
    EXPECT_EQ(pageLine(u"&bPage &p of &P&b", 2, 13), (PageLine{u""_s, u"Page 2 of 13"_s, u""_s}));
}

TEST(PageLineTest, an_empty_text_draws_nothing) {
    EXPECT_EQ(pageLine(u"", 1, 1), PageLine());
}

TEST(PageLineTest, a_text_without_a_code_stands_left) {
    EXPECT_EQ(pageLine(u"Folding Easel", 1, 1), (PageLine{u"Folding Easel"_s, u""_s, u""_s}));
}

TEST(PageLineTest, the_line_has_three_parts) {
    EXPECT_EQ(pageLine(u"a&bb&bc&bd", 1, 1), (PageLine{u"a"_s, u"b"_s, u"cd"_s}));
}

TEST(PageLineTest, two_ampersands_are_one) {
    EXPECT_EQ(pageLine(u"Nut && bolt &&p", 1, 1), (PageLine{u"Nut & bolt &p"_s, u""_s, u""_s}));
}

TEST(PageLineTest, an_ampersand_at_the_end_stands_for_itself) {
    EXPECT_EQ(pageLine(u"Nut &", 1, 1), (PageLine{u"Nut &"_s, u""_s, u""_s}));
}

TEST(PageLineTest, what_the_pages_do_not_tell_is_left_out) {
    EXPECT_EQ(pageLine(u"&w&bprinted &d&b&u", 1, 1), (PageLine{u""_s, u"printed "_s, u""_s}));
}
