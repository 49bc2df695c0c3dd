#include "editors/panels/ShrunkPicture.h"

#include "support/PeakMemory.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;

TEST(ShrunkPictureTest, a_picture_is_stretched_to_the_size_that_is_asked_for) {
    QImage picture(60, 40, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const QImage shrunk = shrunkPicture(picture, {20, 30});
    EXPECT_EQ(shrunk.size(), QSize(20, 30));
    EXPECT_EQ(shrunk.pixelColor(10, 10), QColor(Qt::red));
}

TEST(ShrunkPictureTest, nothing_comes_of_nothing) {
    EXPECT_TRUE(shrunkPicture({}, {20, 30}).isNull());
    EXPECT_TRUE(shrunkPicture(QImage(9000, 1, QImage::Format_Mono), {128, 0}).isNull());
}

TEST(ShrunkPictureTest, a_line_of_one_pixel_in_a_page_that_was_scanned_is_still_seen) {
    QImage page(2048, 2048, QImage::Format_RGB32);
    page.fill(Qt::white);
    for (int y = 0; y < page.height(); ++y)
        page.setPixel(1001, y, qRgb(0, 0, 0));
    const QImage shrunk = shrunkPicture(page, {128, 128});
    EXPECT_LT(shrunk.pixelColor(62, 60).lightness(), 250);
}

TEST(ShrunkPictureTest, a_large_picture_takes_little_beside_itself_in_every_format) {
    for (const QImage::Format format :
         {QImage::Format_Mono, QImage::Format_Indexed8, QImage::Format_Grayscale8,
          QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_RGBA64}) {
        QImage picture(6000, 5000, format);
        if (format == QImage::Format_Mono || format == QImage::Format_Indexed8)
            picture.setColorTable({qRgb(255, 0, 0), qRgb(0, 0, 255)});
        if (format == QImage::Format_Grayscale8 || format == QImage::Format_Mono ||
            format == QImage::Format_Indexed8)
            picture.fill(0U);
        else
            picture.fill(Qt::red);
        const PeakMemory memory;
        const QImage shrunk = shrunkPicture(picture, {128, 107});
        EXPECT_LT(memory.growthInBytes(), 64 * 1024 * 1024) << "format " << format;
        EXPECT_EQ(shrunk.size(), QSize(128, 107));
        EXPECT_EQ(shrunk.pixelColor(64, 50),
                  QColor(format == QImage::Format_Grayscale8 ? Qt::black : Qt::red))
            << "format " << format;
    }
}
