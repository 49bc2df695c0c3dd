#pragma once

#include <QByteArray>
#include <QString>

namespace quillford {

/// Takes the pictures of a project while it is read.
class PictureReceiver {
public:
    virtual ~PictureReceiver() = default;

    /// The picture that is stored for a figure: the path it was attached from, as it is stored, and
    /// the bytes of its file. Called once for each attached figure whose stream is there, in the
    /// order of the figures, when all fields are read. May raise `Error`, which is passed over.
    virtual void takePicture(int figure, const QString& path, const QByteArray& bytes) = 0;
};

} // namespace quillford
