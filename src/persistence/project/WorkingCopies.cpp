#include "persistence/project/WorkingCopies.h"

#include "base/Error.h"
#include "base/Files.h"
#include "core/rules/FigureSize.h"

#include <QFile>

#include <algorithm>

namespace quillford {

namespace {

constexpr qint64 BadFileName = 52;

bool canBearName(const QString& name) {
    return !name.isEmpty() && name != u"." && name != u".." && !name.contains(QChar(u'\0'));
}

} // namespace

QString GetFileName(const QString& path) {
    return path.sliced(std::max(path.lastIndexOf(u'\\'), path.lastIndexOf(u'/')) + 1);
}

WorkingCopies::WorkingCopies(ProjectFields& fields, Folders& folders, PictureReader& pictures)
    : fields_(fields), folders_(folders), pictures_(pictures) {}

void WorkingCopies::takePicture(int figure, const QString& path, const QByteArray& bytes) {
    const QString copy = writeTempPicture(bytes, path);
    fields_.figureState(figure).workingCopy = copy;
    measureFigure(fields_, figure, copy, pictures_);
}

QString WorkingCopies::writeTempPicture(const QByteArray& bytes, const QString& path) {
    const QString name = GetFileName(path);
    if (!canBearName(name))
        throw Error(BadFileName, QStringLiteral("no file can bear this name"), path);
    const QString copy = folders_.temporaryFolder() + u'/' + name;
    QFile file;
    openPlainFile(file, copy);
    writeAll(file, bytes, copy);
    return copy;
}

} // namespace quillford
