#include "platform/linux/QtPictureReader.h"

#include "platform/linux/QuietErrors.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>

namespace quillford {

std::optional<QSize> QtPictureReader::pixelSize(const QString& path) {
    // Only a picture that really decodes has a size: the header of a damaged one proves nothing.
    const QImage decoded = picture(path);
    if (decoded.isNull())
        return std::nullopt;
    return decoded.size();
}

QImage QtPictureReader::picture(const QString& path) {
    constexpr int MegabytesHeld = 256;
    QImageReader::setAllocationLimit(MegabytesHeld);
    // Given a mere name, the reader would also try it with every ending that it knows. Only files
    // are opened: opening a pipe would wait for somebody to write into it.
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(false);
    const QuietErrors quiet;
    return reader.read();
}

} // namespace quillford
