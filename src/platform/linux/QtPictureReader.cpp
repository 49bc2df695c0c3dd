#include "platform/linux/QtPictureReader.h"

#include <QFile>
#include <QImage>
#include <QImageReader>

namespace quillford {

std::optional<QSize> QtPictureReader::pixelSize(const QString& path) {
    if (path.isEmpty())
        return std::nullopt;
    constexpr int MegabytesHeld = 256;
    QImageReader::setAllocationLimit(MegabytesHeld);
    // Given a mere name, the reader would also try it with every ending that it knows.
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(false);
    // Only a picture that really decodes has a size: the header of a damaged one proves nothing.
    const QImage picture = reader.read();
    if (picture.isNull())
        return std::nullopt;
    return picture.size();
}

} // namespace quillford
