#include "persistence/session/Backups.h"

#include "base/Files.h"
#include "core/settings/FileNames.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace quillford {

namespace {

constexpr qsizetype MostOfAName = 20;

/// What follows the file's name: copies of one name stand in the order of their times.
const QString EndingFormat = QStringLiteral(" (yyyy-MM-dd HH.mm.ss.zzz)'.ivd'");

/// The time in the name of a copy; invalid for the copy of a file of another name, which may well
/// begin in the same way.
QDateTime timeOf(const QString& copy, const QString& name) {
    if (!copy.startsWith(name))
        return {};
    return QDateTime::fromString(copy.sliced(name.size()), EndingFormat);
}

} // namespace

QString Backups::folder() const {
    return folders_.stateFolder() + QStringLiteral("/Backups");
}

void Backups::keep(const QString& path) const {
    if (!QFileInfo(path).isFile())
        return;
    const QString name = cutToBytes(QFileInfo(path).completeBaseName(), MostFileNameBytes);
    QDir place(folder());
    place.mkpath(QStringLiteral("."));
    QStringList copies = copiesOf(name);
    // A clock that was set back must not make the newest copy the oldest.
    QDateTime time = clock_.dateAndTime();
    if (!copies.isEmpty())
        time = std::max(time, timeOf(copies.constLast(), name).addMSecs(1));
    const QString copy = place.filePath(name + time.toString(EndingFormat));
    QFile source(path);
    if (!source.copy(copy))
        raiseFileError(source, copy);
    while (copies.size() >= MostOfAName)
        place.remove(copies.takeFirst());
}

QStringList Backups::copiesOf(const QString& name) const {
    QStringList copies = QDir(folder()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    copies.removeIf([&name](const QString& copy) { return !timeOf(copy, name).isValid(); });
    return copies;
}

} // namespace quillford
