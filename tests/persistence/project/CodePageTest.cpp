#include "persistence/project/CodePage.h"

#include "persistence/project/PropertyBytes.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

QString decoded(quint16 number, const QByteArray& bytes) {
    return CodePage(number).decode(propertyset::bytesOf(bytes));
}

} // namespace

TEST(CodePage, of_1252_reads_and_writes_each_of_its_bytes) {
    QByteArray all;
    for (int byte = 1; byte < 256; ++byte)
        all += static_cast<char>(byte);
    const QString text = decoded(1252, all);
    ASSERT_EQ(text.size(), 255);
    EXPECT_EQ(text[0x80 - 1], QChar(0x20AC));
    EXPECT_EQ(text[0x9F - 1], QChar(0x0178));
    EXPECT_EQ(text[0xE9 - 1], QChar(0x00E9));
    EXPECT_EQ(CodePage(1252).encode(text), all);
}

TEST(CodePage, of_1252_writes_nothing_that_it_cannot_hold) {
    EXPECT_FALSE(CodePage(1252).encode(u"a\u0416"));
    EXPECT_FALSE(CodePage(1252).encode(u"\u0080"));
}

TEST(CodePage, of_utf_8_holds_any_text) {
    const QString text = u"Caf\u00e9 \u4e2d \U0001F600"_s;
    EXPECT_EQ(CodePage(65001).encode(text), text.toUtf8());
    EXPECT_EQ(decoded(65001, text.toUtf8()), text);
}

TEST(CodePage, of_utf_16_is_little_endian_and_keeps_a_lone_surrogate) {
    const QString text = QString(QChar(0xD83D)) + u"A"_s;
    const QByteArray bytes("\x3D\xD8"
                           "A\0",
                           4);
    EXPECT_EQ(CodePage(1200).encode(text), bytes);
    EXPECT_EQ(decoded(1200, bytes), text);
    EXPECT_EQ(decoded(1200, bytes + "B"), text) << "half a unit is no unit";
}

TEST(CodePage, of_the_toolkit_is_read_and_written) {
    EXPECT_EQ(decoded(1251, "\xC6"), u"\u0416"_s);
    EXPECT_EQ(CodePage(1251).encode(u"\u0416"), QByteArray("\xC6"));
    EXPECT_FALSE(CodePage(1251).encode(u"\u4e2d"));
    EXPECT_EQ(decoded(932, "\x93\xFA"), u"\u65e5"_s);
    EXPECT_EQ(CodePage(932).encode(u"\u65e5"), QByteArray("\x93\xFA"));
    EXPECT_FALSE(CodePage(932).encode(u"\u20AC"));
    EXPECT_EQ(decoded(437, "\xE4"), u"\u03a3"_s);
    EXPECT_EQ(decoded(10000, "\x8A"), u"\u00e4"_s);
    EXPECT_EQ(decoded(28592, "\xB1"), u"\u0105"_s);
    EXPECT_EQ(decoded(20866, "\xC1"), u"\u0430"_s);
}

TEST(CodePage, that_nobody_knows_is_read_as_1252_and_never_written) {
    EXPECT_EQ(decoded(4, "\x80 caf\xE9"), u"\u20AC caf\u00e9"_s);
    EXPECT_FALSE(CodePage(4).encode(u"a"));
}

TEST(CodePage, ends_a_text_at_its_terminator) {
    EXPECT_EQ(decoded(1252, QByteArray("ab\0cd", 5)), u"ab"_s);
    EXPECT_EQ(decoded(65001, QByteArray("ab\0cd", 5)), u"ab"_s);
    EXPECT_EQ(decoded(1200, QByteArray("a\0\0\0b\0", 6)), u"a"_s);
    EXPECT_EQ(decoded(1252, QByteArray("ab", 2)), u"ab"_s);
    EXPECT_TRUE(decoded(1251, QByteArray()).isEmpty());
}
