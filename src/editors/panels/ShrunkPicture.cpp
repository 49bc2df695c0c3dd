#include "editors/panels/ShrunkPicture.h"

namespace quillford {

QImage shrunkPicture(const QImage& picture, QSize size) {
    // Smooth scaling holds the whole picture with four bytes a pixel: 1.6 GB for a drawing in black
    // and white of 20000 by 20000 pixels. Leaving pixels out first needs no such copy.
    constexpr QSize Most(2048, 2048);
    const bool isLarge = picture.width() > Most.width() || picture.height() > Most.height();
    const QImage source = isLarge ? picture.scaled(picture.size().boundedTo(Most)) : picture;
    return source.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace quillford
