#pragma once

class QImage;
class QString;

namespace quillford {

/// The pictures of files, for those who draw them.
class PictureLoader {
public:
    virtual ~PictureLoader() = default;

    /// The picture in the file `path`, known by its content and never turned by what its metadata
    /// says; a null picture where `PictureReader::pixelSize` knows no size.
    [[nodiscard]] virtual QImage picture(const QString& path) = 0;
};

} // namespace quillford
