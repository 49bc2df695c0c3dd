#include "editors/rules/FigureFile.h"

#include "base/Text.h"

#include <QFileInfo>

namespace quillford {

QString figureExtension(QStringView fileTitle) {
    const qsizetype point = fileTitle.lastIndexOf(u'.');
    return point < 0 ? QString() : lowerCase(fileTitle.sliced(point));
}

bool isFigureExtension(QStringView extension) {
    return extension == u".jpg" || extension == u".bmp" || extension == u".png" ||
           extension == u".gif";
}

bool isFigureFileSizeOk(const QString& path) {
    constexpr qint64 MostBytes = 2097152;
    return QFileInfo(path).size() <= MostBytes;
}

} // namespace quillford
