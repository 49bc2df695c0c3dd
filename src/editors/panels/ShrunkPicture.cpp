#include "editors/panels/ShrunkPicture.h"

namespace quillford {

QImage shrunkPicture(const QImage& picture, QSize size) {
    // Smooth scaling first copies the whole picture with four bytes a pixel: 256 MB for a drawing
    // in black and white that takes 8 MB itself. Leaving pixels out needs no such copy.
    constexpr QSize Most(2048, 2048);
    const bool isLarge = picture.width() > Most.width() || picture.height() > Most.height();
    const QImage source = isLarge ? picture.scaled(picture.size().boundedTo(Most)) : picture;
    return source.convertToFormat(QImage::Format_ARGB32_Premultiplied)
        .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace quillford
