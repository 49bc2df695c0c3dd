#include "core/settings/FileNames.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

QString projectName(const QString& fileNo) {
    return fileNameWith(u"Project - "_s, fileNo, u".ivd"_s);
}

qsizetype bytesOf(const QString& name) {
    return name.toUtf8().size();
}

} // namespace

TEST(FileNames, a_plain_number_stands_between_the_prefix_and_the_ending) {
    EXPECT_EQ(projectName(u"A-1 (Größe 3)"_s), u"Project - A-1 (Größe 3).ivd");
}

TEST(FileNames, the_blanks_around_a_number_are_left_out) {
    EXPECT_EQ(projectName(u"  A 1  "_s), u"Project - A 1.ivd");
}

TEST(FileNames, characters_that_no_name_can_carry_become_hyphens) {
    EXPECT_EQ(projectName(u"../a\\b:c*d?e\"f<g>h|i"_s), u"Project - ..-a-b-c-d-e-f-g-h-i.ivd");
    EXPECT_EQ(projectName(u"1\t2\r\n3\x7f"_s + QChar(u'\0')), u"Project - 1-2--3--.ivd");
}

TEST(FileNames, half_a_character_becomes_a_hyphen_and_a_whole_one_stays) {
    const QString clef = QString::fromUcs4(U"\U0001D11E");
    EXPECT_EQ(projectName(clef), u"Project - "_s + clef + u".ivd"_s);
    EXPECT_EQ(projectName(clef.left(1) + u'x'), u"Project - -x.ivd");
    EXPECT_EQ(projectName(clef.right(1) + clef.left(1)), u"Project - --.ivd");
}

TEST(FileNames, a_long_number_is_cut_and_the_ending_stays) {
    const QString name = projectName(QString(1000, u'7'));
    EXPECT_EQ(bytesOf(name), MostFileNameBytes);
    EXPECT_TRUE(name.endsWith(u"7.ivd"_s));
    EXPECT_EQ(bytesOf(fileNameWith({}, QString(200, u'7'), {})), 200);
}

TEST(FileNames, a_cut_splits_no_character) {
    const QString clef = QString::fromUcs4(U"\U0001D11E");
    for (const QString& letter : {u"ß"_s, u"★"_s, clef}) {
        const QString name = projectName(u'x' + letter.repeated(300));
        EXPECT_LE(bytesOf(name), MostFileNameBytes);
        EXPECT_GT(bytesOf(name), MostFileNameBytes - bytesOf(letter));
        EXPECT_TRUE(name.endsWith(letter + u".ivd"_s));
    }
}
