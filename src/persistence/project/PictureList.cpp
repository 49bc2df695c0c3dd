#include "persistence/project/PictureList.h"

#include <QCryptographicHash>

namespace quillford {

void PictureList::takePicture(int figure, const QString& path, const QByteArray& bytes) {
    pictures_.append(
        {figure, path, bytes.size(), QCryptographicHash::hash(bytes, QCryptographicHash::Sha256)});
}

} // namespace quillford
