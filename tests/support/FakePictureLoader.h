#pragma once

#include "platform/PictureLoader.h"

#include <QHash>
#include <QImage>
#include <QString>
#include <QStringList>

namespace quillford {

/// Has the pictures that the test gives it, and keeps what it is asked for.
class FakePictureLoader final : public PictureLoader {
public:
    QHash<QString, QImage> pictures;
    QStringList asked;

    QImage picture(const QString& path) override {
        asked.append(path);
        return pictures.value(path);
    }
};

} // namespace quillford
