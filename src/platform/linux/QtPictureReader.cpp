#include "platform/linux/QtPictureReader.h"

#include <QImage>
#include <QImageReader>

namespace quillford {

std::optional<QSize> QtPictureReader::pixelSize(const QString& path) {
    if (path.isEmpty())
        return std::nullopt;
    constexpr int MegabytesHeld = 256;
    QImageReader::setAllocationLimit(MegabytesHeld);
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(false);
    // Only a picture that really decodes has a size: the header of a damaged one proves nothing.
    const QImage picture = reader.read();
    if (picture.isNull())
        return std::nullopt;
    return picture.size();
}

} // namespace quillford
