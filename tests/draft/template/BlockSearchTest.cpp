#include "draft/template/BlockSearch.h"

#include "base/Error.h"
#include "support/PrintQt.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <vector>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString Source = u"the source"_s;

std::vector<QString> bodiesOf(const std::vector<FoundBlock>& found) {
    std::vector<QString> bodies;
    for (const FoundBlock& block : found)
        bodies.push_back(block.body);
    return bodies;
}

std::vector<QString> wholesOf(const std::vector<FoundBlock>& found) {
    std::vector<QString> wholes;
    for (const FoundBlock& block : found)
        wholes.push_back(block.whole);
    return wholes;
}

} // namespace

TEST(BlockSearch, a_block_is_found_with_and_without_its_marks) {
    const auto found =
        findBlocks(u"a&lt;!--BEGIN B 1--&gt;\r\nx&lt;!--END B 1--&gt;z"_s, u"B 1"_s, Source);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].whole, u"&lt;!--BEGIN B 1--&gt;\r\nx&lt;!--END B 1--&gt;"_s);
    EXPECT_EQ(found[0].body, u"\r\nx"_s);
}

TEST(BlockSearch, a_plain_name_finds_what_its_expression_finds) {
    const QString begin = u"&lt;!--BEGIN Sink--&gt;"_s;
    const QString end = u"&lt;!--END Sink--&gt;"_s;
    const QStringList texts{
        QString(),
        u"no marks"_s,
        begin,
        end,
        end + begin,
        begin + end,
        begin + u"one"_s + end + u"two"_s + end + u"three"_s,
        begin + u"one"_s + begin + u"two"_s + end,
        end + begin + u"one"_s + end + begin,
        begin + u"one"_s + end + begin + u"two"_s + end,
        u"&LT;!--begin SINK--&gt;one&lt;!--End sink--&GT;"_s,
        u"&lt;!--BEGIN \u017FIN\u212A--&gt;long s, Kelvin&lt;!--END Sin\u212A--&gt;"_s,
        u"&lt;!--BEGIN Sinks--&gt;another&lt;!--END Sinks--&gt;"_s,
        begin.chopped(1) + end,
        begin + u"\u2028\r\n\t[mark]"_s + end,
    };
    // An empty group means nothing, but it is no letter: this name goes in as an expression.
    const QString asExpression = u"(?:)Sink"_s;
    for (const QString& text : texts) {
        const auto found = findBlocks(text, u"Sink"_s, Source);
        const auto expected = findBlocks(text, asExpression, Source);
        EXPECT_EQ(wholesOf(found), wholesOf(expected)) << qPrintable(text);
        EXPECT_EQ(bodiesOf(found), bodiesOf(expected)) << qPrintable(text);
    }
}

TEST(BlockSearch, a_name_is_an_expression) {
    const QString text = u"&lt;!--BEGIN B1--&gt;x&lt;!--END B2--&gt;"_s;
    EXPECT_EQ(bodiesOf(findBlocks(text, u"B."_s, Source)), std::vector{u"x"_s});
    EXPECT_TRUE(findBlocks(text, u"B1"_s, Source).empty());
}

TEST(BlockSearch, a_name_that_makes_no_expression_is_an_error_of_the_caller) {
    try {
        (void)findBlocks(u"text"_s, u"a(b"_s, Source);
        FAIL() << "an open group was taken";
    } catch (const Error& error) {
        EXPECT_EQ(error.source(), Source);
        EXPECT_NE(error.number(), 0);
    }
}
