#pragma once

#include <QSize>
#include <QString>

#include <optional>

namespace quillford {

/// What the program asks about picture files. A picture is known by its content, whatever its name
/// ends in, and is never turned by what its metadata says.
class PictureReader {
public:
    virtual ~PictureReader() = default;

    /// Width and height in pixels of the picture in the file `path`. Nothing when the file is
    /// missing, is no picture, or is one that cannot be decoded (one too large to be held in 256 MB
    /// included). A picture whose last rows are missing counts where its decoder shows the others.
    /// Of an animated picture, its first frame.
    [[nodiscard]] virtual std::optional<QSize> pixelSize(const QString& path) = 0;
};

} // namespace quillford
