#include "cli/OutputPlaces.h"

#include "base/Error.h"
#include "core/rules/FigureSize.h"

#include <QDir>
#include <QFileInfo>

namespace quillford {

namespace {

constexpr int PathFileAccess = 75; // the runtime's number for a path that cannot be written

/// Where a file of this name lies, or will lie once it is written: links are followed, those that
/// lead to no file yet as well.
QString placeOf(QString path) {
    constexpr int MostLinks = 40; // the kernel follows no more
    for (int i = 0; i < MostLinks && QFileInfo(path).isSymLink(); ++i)
        path = QFileInfo(path).symLinkTarget();
    const QFileInfo file(path);
    const QString folder = file.dir().canonicalPath();
    return folder.isEmpty() ? file.absoluteFilePath() : QDir(folder).filePath(file.fileName());
}

} // namespace

void OutputPlaces::keep(const QString& path, const QString& owner) {
    owners_.insert(placeOf(path), owner);
}

void OutputPlaces::keepPictures(const ProjectFields& fields) {
    for (int i = 0; i < fields.panelCount(FieldGroup::Figures); ++i) {
        const QString picture = figurePath(fields, i);
        if (!picture.isEmpty())
            keep(picture, QStringLiteral("the picture of figure %1").arg(i + 1));
    }
}

void OutputPlaces::take(const QString& path, const QString& output) {
    if (QFileInfo::exists(path) && !QFileInfo(path).isFile())
        throw Error(PathFileAccess, QStringLiteral("%1 can only write a file").arg(output), path);
    const QString place = placeOf(path);
    if (owners_.contains(place))
        throw Error(PathFileAccess,
                    QStringLiteral("%1 would replace %2").arg(output, owners_.value(place)), path);
    owners_.insert(place, QStringLiteral("the output of %1").arg(output));
    ++outputs_;
}

} // namespace quillford
