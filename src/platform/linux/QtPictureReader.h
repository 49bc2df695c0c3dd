#pragma once

#include "platform/PictureLoader.h"
#include "platform/PictureReader.h"

namespace quillford {

/// Decodes with the toolkit's image readers; needs QtGui, but no display.
class QtPictureReader final : public PictureReader, public PictureLoader {
public:
    [[nodiscard]] std::optional<QSize> pixelSize(const QString& path) override;
    [[nodiscard]] QImage picture(const QString& path) override;
};

} // namespace quillford
