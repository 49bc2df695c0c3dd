#pragma once

#include "persistence/project/PictureReceiver.h"

#include <QList>

namespace quillford {

/// Keeps what can be told of the stored pictures of a project, and not the pictures.
class PictureList final : public PictureReceiver {
public:
    struct Picture {
        int figure;
        QString path; ///< as it is stored
        qint64 size;  ///< in bytes
        QByteArray sha256;
    };

    void takePicture(int figure, const QString& path, const QByteArray& bytes) override;

    /// In the order of the figures.
    [[nodiscard]] const QList<Picture>& pictures() const noexcept { return pictures_; }

private:
    QList<Picture> pictures_;
};

} // namespace quillford
