#include "platform/linux/FileSettingsStore.h"

#include "base/Error.h"
#include "platform/linux/FileLock.h"
#include "platform/linux/SettingsText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopedValueRollback>

#include <cerrno>
#include <cstdio>
#include <unistd.h>
#include <utility>

namespace quillford {

namespace {

constexpr char FirstLine[] = "# The settings of Quillford. A line that is no value is kept.\n";

[[noreturn]] void fail(int number, const QString& path, const QString& reason) {
    throw Error(number, QStringLiteral("The settings file \"%1\" %2").arg(path, reason));
}

void writeToDisk(QFile& file, const QByteArray& bytes) {
    constexpr auto UserAlone = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate, UserAlone) &&
        file.write(bytes) == bytes.size() && file.flush() && fsync(file.handle()) == 0)
        return;
    const QString reason = file.errorString();
    file.remove();
    fail(EIO, file.fileName(), QStringLiteral("cannot be written: %1").arg(reason));
}

} // namespace

FileSettingsStore::FileSettingsStore(QString path, std::chrono::milliseconds patience)
    : path_(std::move(path)), patience_(patience) {}

void FileSettingsStore::look(const Look& step) const {
    step(SettingsText(stored()));
}

void FileSettingsStore::change(const Change& step) {
    if (changing_)
        fail(EDEADLK, path_, QStringLiteral("is being changed."));
    const QScopedValueRollback changing(changing_, true);
    QDir().mkpath(QFileInfo(path_).path());
    const FileLock lock(path_ + QStringLiteral(".lock"), patience_);
    SettingsText text(stored());
    const QByteArray before = text.bytes();
    step(text);
    if (const QByteArray after = text.bytes(); after != before)
        replaceBy(after);
}

QByteArray FileSettingsStore::stored() const {
    const QFileInfo info(path_);
    if (!info.exists())
        return FirstLine;
    QFile file(path_);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        fail(EACCES, path_, QStringLiteral("cannot be read: %1").arg(file.errorString()));
    if (file.size() > MostBytes)
        fail(EFBIG, path_, QStringLiteral("is too large."));
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        fail(EIO, path_, QStringLiteral("cannot be read: %1").arg(file.errorString()));
    return bytes;
}

void FileSettingsStore::replaceBy(const QByteArray& bytes) const {
    if (bytes.size() > MostBytes)
        fail(EFBIG, path_, QStringLiteral("would become too large."));
    const QFileInfo old(path_);
    // A file may be replaced in spite of its own permissions, but not against its owner's wish.
    if (old.exists() && !old.isWritable())
        fail(EACCES, path_, QStringLiteral("is write-protected."));
    const QString target = old.exists() ? old.canonicalFilePath() : path_;
    // One name is enough, as the lock is held, and what a killed program left is written over.
    QFile beside(target + QStringLiteral(".new"));
    writeToDisk(beside, bytes);
    if (old.exists())
        beside.setPermissions(old.permissions());
    if (std::rename(QFile::encodeName(beside.fileName()).constData(),
                    QFile::encodeName(target).constData()) == 0)
        return;
    const int number = errno;
    beside.remove();
    fail(number, path_, QStringLiteral("cannot be replaced: %1").arg(qt_error_string(number)));
}

} // namespace quillford
