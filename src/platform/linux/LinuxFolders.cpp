#include "platform/linux/LinuxFolders.h"

#include "base/Error.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <cerrno>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace quillford {

namespace {

/// Temporary names hold four random digits and can be guessed, so the folder must be the user's
/// alone: made by this user, reached by no link, closed to everybody else.
void makePrivateFolder(const QString& path) {
    QDir().mkpath(QFileInfo(path).path());
    const QByteArray name = QFile::encodeName(path);
    if (mkdir(name.constData(), 0700) != 0 && errno != EEXIST)
        throw Error(errno,
                    QStringLiteral("The folder for temporary files \"%1\" cannot be made: %2")
                        .arg(path, QString::fromLocal8Bit(strerror(errno))));

    struct stat status {};

    if (lstat(name.constData(), &status) != 0 || !S_ISDIR(status.st_mode) ||
        status.st_uid != geteuid() || chmod(name.constData(), 0700) != 0)
        throw Error(EACCES,
                    QStringLiteral("The folder for temporary files \"%1\" is not this user's own.")
                        .arg(path));
}

} // namespace

QString LinuxFolders::temporaryFolder() {
    const QString named = qEnvironmentVariable("Temp");
    if (!named.isEmpty())
        return QDir::cleanPath(named);
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                           QStringLiteral("/Quillford");
    makePrivateFolder(folder);
    return folder;
}

} // namespace quillford
