#include "platform/linux/LinuxFolders.h"

#include "base/Error.h"

#include <QCoreApplication>
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

/// The folder that the user has chosen for temporary files; who else may use it is the user's own
/// affair.
QString namedTemporaryFolder(const QString& name) {
    const QString folder = QDir::cleanPath(QDir::current().absoluteFilePath(name));
    if (!QDir().mkpath(folder))
        throw Error(
            ENOENT,
            QStringLiteral("The folder for temporary files \"%1\" cannot be made.").arg(folder));
    return folder;
}

/// One of the base folders that the desktop's programs agree on. A variable that holds no full path
/// does not count.
QString baseFolder(const char* variable, const QString& belowHome) {
    const QString named = qEnvironmentVariable(variable);
    return QDir::isAbsolutePath(named) ? QDir::cleanPath(named) : QDir::home().filePath(belowHome);
}

} // namespace

QString LinuxFolders::programFile() {
    return QCoreApplication::applicationFilePath();
}

QString LinuxFolders::programFolder() {
    return QCoreApplication::applicationDirPath();
}

QString LinuxFolders::documentsFolder() {
    const QString named = qEnvironmentVariable("XDG_DOCUMENTS_DIR");
    if (QDir::isAbsolutePath(named))
        return QDir::cleanPath(named);
    return QDir::cleanPath(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
}

QString LinuxFolders::configurationFolder() {
    return baseFolder("XDG_CONFIG_HOME", QStringLiteral(".config")) + QStringLiteral("/Quillford");
}

QString LinuxFolders::localDataFolder() {
    return baseFolder("XDG_DATA_HOME", QStringLiteral(".local/share"));
}

QString LinuxFolders::stateFolder() {
    return baseFolder("XDG_STATE_HOME", QStringLiteral(".local/state")) +
           QStringLiteral("/Quillford");
}

QString LinuxFolders::temporaryFolder() {
    const QString named = qEnvironmentVariable("Temp");
    if (!named.isEmpty())
        return namedTemporaryFolder(named);
    const QString folder =
        baseFolder("XDG_CACHE_HOME", QStringLiteral(".cache")) + QStringLiteral("/Quillford");
    makePrivateFolder(folder);
    return folder;
}

} // namespace quillford
