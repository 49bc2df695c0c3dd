#include "platform/linux/QtPictureReader.h"

#include "base/ByteOrder.h"
#include "support/PrintQt.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

std::span<std::byte> bytesIn(QByteArray& array) {
    return std::as_writable_bytes(std::span(array.data(), static_cast<std::size_t>(array.size())));
}

/// A picture with a single pixel drawn on it; the toolkit cannot write this kind.
QByteArray gif(quint16 width, quint16 height) {
    QByteArray bytes = QByteArray::fromHex("474946383961" // GIF89a
                                           "00000000"     // width and height, put in below
                                           "800000"       // a table of two colours
                                           "ffffff000000" //
                                           "2c00000000"   // an image at the left top
                                           "01000100"     // of one pixel
                                           "00"           //
                                           "0202440100"   // its compressed data
                                           "3b");
    storeLittleEndian(bytesIn(bytes), 6, width);
    storeLittleEndian(bytesIn(bytes), 8, height);
    return bytes;
}

class QtPictureReaderTest : public testing::Test {
protected:
    /// The path of a picture of 37 by 21 pixels in this format.
    QString makePicture(const QString& name, const char* format) const {
        QImage image(37, 21, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                image.setPixel(x, y, qRgb(x * 97 % 256, y * 53 % 256, x * y * 31 % 256));
        const QString path = folder.filePath(name);
        EXPECT_TRUE(image.save(path, format)) << format;
        return path;
    }

    QString makeFile(const QString& name, const QByteArray& bytes) const {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return file.fileName();
    }

    /// A BMP picture of another size than its pixels are enough for.
    QByteArray bmpClaiming(qint32 width, qint32 height) const {
        QByteArray bytes = bytesOf(makePicture(u"small.bmp"_s, "BMP"));
        storeLittleEndian(bytesIn(bytes), 18, width);
        storeLittleEndian(bytesIn(bytes), 22, height);
        return bytes;
    }

    /// A PNG picture with another header: its width and height and the header's checksum, in hex.
    QByteArray pngClaiming(const char* size, const char* checksum) const {
        QByteArray bytes = bytesOf(makePicture(u"small.png"_s, "PNG"));
        bytes.replace(16, 8, QByteArray::fromHex(size));
        bytes.replace(29, 4, QByteArray::fromHex(checksum));
        return bytes;
    }

    static QByteArray bytesOf(const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QTemporaryDir folder;
    QtPictureReader reader;
};

} // namespace

TEST_F(QtPictureReaderTest, gives_the_size_of_every_kind_of_picture_that_can_be_attached) {
    EXPECT_EQ(reader.pixelSize(makePicture(u"a.png"_s, "PNG")), QSize(37, 21));
    EXPECT_EQ(reader.pixelSize(makePicture(u"a.jpg"_s, "JPG")), QSize(37, 21));
    EXPECT_EQ(reader.pixelSize(makePicture(u"a.bmp"_s, "BMP")), QSize(37, 21));
    EXPECT_EQ(reader.pixelSize(makeFile(u"a.gif"_s, gif(1, 1))), QSize(1, 1));
    EXPECT_EQ(reader.pixelSize(makeFile(u"b.gif"_s, gif(300, 2))), QSize(300, 2));
}

TEST_F(QtPictureReaderTest, knows_a_picture_by_its_content_and_not_by_its_name) {
    for (const QString& name :
         {u"a.jpg"_s, u"a.gif"_s, u"a.txt"_s, u"a"_s, u"a.b.BMP "_s, u"#1 100% \u00E9 <b>.png"_s})
        EXPECT_EQ(reader.pixelSize(makePicture(name, "PNG")), QSize(37, 21)) << name.toStdString();
    EXPECT_EQ(reader.pixelSize(makePicture(u"b.png"_s, "BMP")), QSize(37, 21));
    EXPECT_EQ(reader.pixelSize(makeFile(u"c.png"_s, gif(1, 1))), QSize(1, 1));
}

TEST_F(QtPictureReaderTest, gives_nothing_for_what_is_no_file) {
    EXPECT_EQ(reader.pixelSize(QString()), std::nullopt);
    EXPECT_EQ(reader.pixelSize(folder.filePath(u"missing.png"_s)), std::nullopt);
    EXPECT_EQ(reader.pixelSize(folder.path()), std::nullopt);
}

TEST_F(QtPictureReaderTest, does_not_wait_at_a_pipe) {
    const QString pipe = folder.filePath(u"pipe.png"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(reader.pixelSize(pipe), std::nullopt);
}

TEST_F(QtPictureReaderTest, does_not_try_a_missing_name_with_the_endings_of_pictures) {
    makePicture(u"figure.png"_s, "PNG");
    EXPECT_EQ(reader.pixelSize(folder.filePath(u"figure"_s)), std::nullopt);
}

TEST_F(QtPictureReaderTest, gives_nothing_for_what_is_no_picture) {
    EXPECT_EQ(reader.pixelSize(makeFile(u"empty.png"_s, {})), std::nullopt);
    EXPECT_EQ(reader.pixelSize(makeFile(u"text.png"_s, "no picture at all\n")), std::nullopt);
    EXPECT_EQ(reader.pixelSize(makeFile(u"zeros.jpg"_s, QByteArray(5000, '\0'))), std::nullopt);
    EXPECT_EQ(reader.pixelSize(makeFile(u"page.gif"_s, "<html><body></body></html>")),
              std::nullopt);
}

TEST_F(QtPictureReaderTest, gives_nothing_for_a_picture_that_ends_in_its_header) {
    const QByteArray files[] = {bytesOf(makePicture(u"a.png"_s, "PNG")),
                                bytesOf(makePicture(u"a.jpg"_s, "JPG")),
                                bytesOf(makePicture(u"a.bmp"_s, "BMP")), gif(1, 1)};
    for (const QByteArray& bytes : files)
        for (const qsizetype length : {1, 2, 4, 8, 12})
            EXPECT_EQ(reader.pixelSize(makeFile(u"cut"_s, bytes.first(length))), std::nullopt)
                << bytes.first(4).toHex().toStdString() << " cut to " << length;
}

TEST_F(QtPictureReaderTest, gives_nothing_for_a_png_picture_whose_pixels_are_cut_off) {
    const QByteArray whole = bytesOf(makePicture(u"a.png"_s, "PNG"));
    for (const qsizetype length : {qsizetype{33}, qsizetype{60}, whole.size() / 2})
        EXPECT_EQ(reader.pixelSize(makeFile(u"cut.png"_s, whole.first(length))), std::nullopt)
            << length;
}

// Decoders of these two kinds show what they have and leave the rest blank.
TEST_F(QtPictureReaderTest, gives_the_whole_size_of_a_jpg_or_bmp_picture_whose_end_is_cut_off) {
    for (const char* format : {"JPG", "BMP"}) {
        const QByteArray whole = bytesOf(makePicture(u"a"_s, format));
        EXPECT_EQ(reader.pixelSize(makeFile(u"cut"_s, whole.chopped(40))), QSize(37, 21)) << format;
    }
}

TEST_F(QtPictureReaderTest, refuses_a_header_that_claims_a_huge_picture) {
    const QByteArray same = pngClaiming("0000002500000015", "4e86b0f9");
    ASSERT_EQ(reader.pixelSize(makeFile(u"same.png"_s, same)), QSize(37, 21));
    const QByteArray huge = pngClaiming("00004e2000004e20", "6c12d16e");
    EXPECT_EQ(reader.pixelSize(makeFile(u"huge.png"_s, huge)), std::nullopt);
    EXPECT_EQ(reader.pixelSize(makeFile(u"huge.gif"_s, gif(20'000, 20'000))), std::nullopt);
    EXPECT_EQ(reader.pixelSize(makeFile(u"huge.bmp"_s, bmpClaiming(20'000, 20'000))), std::nullopt);
}

// At four bytes a pixel the first takes 309 MB and the second 137 MB.
TEST_F(QtPictureReaderTest, holds_256_megabytes_of_pixels_and_no_more) {
    EXPECT_EQ(reader.pixelSize(makeFile(u"over.bmp"_s, bmpClaiming(9'000, 9'000))), std::nullopt);
    EXPECT_EQ(reader.pixelSize(makeFile(u"under.bmp"_s, bmpClaiming(6'000, 6'000))),
              QSize(6'000, 6'000));
}

TEST_F(QtPictureReaderTest, asks_the_file_anew_each_time) {
    const QString path = makePicture(u"a.png"_s, "PNG");
    EXPECT_EQ(reader.pixelSize(path), QSize(37, 21));
    makeFile(u"a.png"_s, gif(1, 1));
    EXPECT_EQ(reader.pixelSize(path), QSize(1, 1));
}
