#include "core/settings/WorkFolders.h"

#include "core/settings/SettingsNames.h"

#include <QDir>
#include <QFileInfo>

namespace quillford {

namespace {

constexpr int MostNumbers = 1000;

bool isTaken(const QString& path) {
    // A link that leads nowhere is a name in use as well.
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

void makeWorkDir(const QString& folder) {
    const QDir workDir(folder);
    workDir.mkpath(QStringLiteral("."));
    workDir.mkdir(QStringLiteral("Projects"));
    workDir.mkdir(QStringLiteral("Projects/Final Projects"));
    workDir.mkdir(QStringLiteral("Drafts"));
}

} // namespace

QString WorkFolders::getWorkDir() {
    const QString name = QDir(folders_.programFolder()).dirName();
    QString folder = QDir(folders_.documentsFolder()).filePath(name);
    if (!QFileInfo(folder).isDir())
        makeWorkDir(folder);
    return folder;
}

QString WorkFolders::getVirtualStoreDir() {
    return QDir(folders_.localDataFolder()).filePath(QStringLiteral("VirtualStore"));
}

QString WorkFolders::getTempDir() {
    const QString folder = folders_.temporaryFolder();
    return folder.endsWith(u'/') ? folder : folder + u'/';
}

QString WorkFolders::lastDir() {
    const QString stored =
        settings_.regRead(Hive::CurrentUser, settingsNames::SettingsKey, settingsNames::LastDir);
    return !stored.isEmpty() && QFileInfo(stored).isDir() ? stored : folders_.documentsFolder();
}

void WorkFolders::setLastDir(const QString& folder) {
    settings_.regWrite(Hive::CurrentUser, settingsNames::SettingsKey, settingsNames::LastDir,
                       folder);
}

QString WorkFolders::nextFreeName(const QString& prefix, const QString& extension) {
    return nextFreeName(prefix, extension, lastDir());
}

QString WorkFolders::nextFreeName(const QString& prefix, const QString& extension,
                                  const QString& folder) {
    const QDir places(folder);
    for (int number = 1; number <= MostNumbers; ++number) {
        QString name = prefix + u' ' + QString::number(number) + u'.' + extension;
        if (!isTaken(places.filePath(name)))
            return name;
    }
    return {};
}

} // namespace quillford
