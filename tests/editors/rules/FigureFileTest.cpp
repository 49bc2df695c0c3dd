#include "editors/rules/FigureFile.h"

#include "support/PrintQt.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

TEST(FigureFile, the_last_point_of_a_name_begins_its_ending) {
    EXPECT_EQ(figureExtension(u"scan.2.old.png"), u".png"_s);
    EXPECT_EQ(figureExtension(u"scan.png.old"), u".old"_s);
    EXPECT_EQ(figureExtension(u"scan."), u"."_s);
    EXPECT_EQ(figureExtension(u".png"), u".png"_s);
    EXPECT_EQ(figureExtension(u"scan"), u""_s);
}

TEST(FigureFile, an_ending_is_judged_in_lower_case) {
    EXPECT_EQ(figureExtension(u"scan.JPG"), u".jpg"_s);
}

TEST(FigureFile, four_endings_pass) {
    for (const auto* good : {u".jpg", u".bmp", u".png", u".gif"})
        EXPECT_TRUE(isFigureExtension(good));
    for (const auto* bad : {u".tiff", u".jpeg", u".", u"", u".jpg ", u"jpg"})
        EXPECT_FALSE(isFigureExtension(bad));
}

TEST(FigureFile, a_file_of_2097152_bytes_passes_and_one_byte_more_does_not) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"figure.png"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    for (const qint64 bytes : {0, 1500000, 2097152}) {
        ASSERT_TRUE(file.resize(bytes));
        EXPECT_TRUE(isFigureFileSizeOk(file.fileName())) << bytes;
    }
    ASSERT_TRUE(file.resize(2097153));
    EXPECT_FALSE(isFigureFileSizeOk(file.fileName()));
}
