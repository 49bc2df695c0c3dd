#include "platform/linux/SharedFile.h"

#include "base/Error.h"
#include "platform/linux/FileLock.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopedValueRollback>

#include <cerrno>
#include <cstdio>
#include <unistd.h>
#include <utility>

namespace quillford {

SharedFile::SharedFile(QString path, QString name, std::chrono::milliseconds patience)
    : path_(std::move(path)), name_(std::move(name)), patience_(patience) {}

QByteArray SharedFile::bytes() const {
    const QFileInfo info(path_);
    if (!info.exists())
        return {};
    QFile file(path_);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        fail(EACCES, QStringLiteral("cannot be read: %1").arg(file.errorString()));
    if (file.size() > MostBytes)
        fail(EFBIG, QStringLiteral("is too large."));
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        fail(EIO, QStringLiteral("cannot be read: %1").arg(file.errorString()));
    return bytes;
}

void SharedFile::change(const Change& step) {
    if (changing_)
        fail(EDEADLK, QStringLiteral("is being changed."));
    const QScopedValueRollback changing(changing_, true);
    QDir().mkpath(QFileInfo(path_).path());
    const FileLock lock(path_ + QStringLiteral(".lock"), patience_);
    const QByteArray before = bytes();
    if (const QByteArray after = step(before); after != before)
        replaceBy(after);
}

void SharedFile::fail(int number, const QString& reason) const {
    throw Error(number, QStringLiteral("The %1 \"%2\" %3").arg(name_, path_, reason));
}

void SharedFile::replaceBy(const QByteArray& bytes) const {
    if (bytes.size() > MostBytes)
        fail(EFBIG, QStringLiteral("would become too large."));
    const QFileInfo old(path_);
    // A file may be replaced in spite of its own permissions, but not against its owner's wish.
    if (old.exists() && !old.isWritable())
        fail(EACCES, QStringLiteral("is write-protected."));
    const QString target = old.exists() ? old.canonicalFilePath() : path_;
    // One name is enough, as the lock is held, and what a killed program left is written over.
    const QString beside = target + QStringLiteral(".new");
    writeBeside(beside, bytes);
    if (old.exists())
        QFile::setPermissions(beside, old.permissions());
    if (std::rename(QFile::encodeName(beside).constData(), QFile::encodeName(target).constData()) ==
        0)
        return;
    const int number = errno;
    QFile::remove(beside);
    fail(number, QStringLiteral("cannot be replaced: %1").arg(qt_error_string(number)));
}

void SharedFile::writeBeside(const QString& path, const QByteArray& bytes) const {
    constexpr auto UserAlone = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate, UserAlone) &&
        file.write(bytes) == bytes.size() && file.flush() && fsync(file.handle()) == 0)
        return;
    const QString reason = file.errorString();
    file.remove();
    fail(EIO, QStringLiteral("cannot be written: %1").arg(reason));
}

} // namespace quillford
