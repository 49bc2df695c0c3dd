#pragma once

#include "platform/PictureReader.h"

#include <QMap>
#include <QStringList>

namespace quillford {

/// Knows the pictures that the test put into `sizes`; every other path is no picture. Keeps the
/// paths that it was asked for, in order.
class FakePictureReader final : public PictureReader {
public:
    QMap<QString, QSize> sizes;
    QStringList asked;

    [[nodiscard]] std::optional<QSize> pixelSize(const QString& path) override {
        asked.append(path);
        const auto found = sizes.constFind(path);
        return found == sizes.constEnd() ? std::nullopt : std::optional(*found);
    }
};

} // namespace quillford
