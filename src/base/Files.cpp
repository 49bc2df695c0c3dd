#include "base/Files.h"

#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillford {

void raiseFileError(const QFileDevice& file, const QString& path) {
    throw Error(file.error(), file.errorString(), path);
}

void raiseFileError(const QFileDevice& file) {
    raiseFileError(file, file.fileName());
}

QByteArray contentOfFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        raiseFileError(file);
    QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError)
        raiseFileError(file);
    return content;
}

void writeAll(QFileDevice& file, const QByteArray& bytes, const QString& path) {
    // On a full disk a write may be short without an error; the next one has it.
    for (qint64 written = 0; written < bytes.size();) {
        const qint64 count = file.write(bytes.constData() + written, bytes.size() - written);
        if (count <= 0)
            raiseFileError(file, path);
        written += count;
    }
}

void replaceFile(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    // Without a buffer: `commit` would not look at what becomes of the bytes that are left in it.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        raiseFileError(file, path);
    writeAll(file, bytes, path);
    if (!file.commit())
        raiseFileError(file, path);
}

void takePlaceOf(const QString& made, const QString& path) {
    if (std::rename(QFile::encodeName(made).constData(), QFile::encodeName(path).constData()) != 0)
        throw Error(errno, QString::fromLocal8Bit(strerror(errno)), path);
}

QString reasonNotWritten(const QString& path, const Error& failure) {
    const QFileInfo folder(QFileInfo(path).absolutePath());
    if (!folder.isDir())
        return QStringLiteral("folder does not exist");
    if (!folder.isWritable())
        return QStringLiteral("folder is read-only");
    if (QFileInfo(path).isDir())
        return QStringLiteral("a folder has this name");
    if (QFileInfo::exists(path) && !QFileInfo(path).isWritable())
        return QStringLiteral("file is read-only");
    if (failure.description() == QString::fromLocal8Bit(strerror(ENOSPC)))
        return QStringLiteral("disk full");
    return failure.description();
}

void openPlainFile(QFile& file, const QString& path) {
    const auto fail = [&path](int code) {
        throw Error(code, QString::fromLocal8Bit(strerror(code)), path);
    };
    if (path.contains(QChar(u'\0')))
        fail(EINVAL);
    const int descriptor = open(QFile::encodeName(path).constData(),
                                O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0666);
    if (descriptor < 0)
        fail(errno);

    struct stat status {};

    const bool isPlain = fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    if (!isPlain || !file.open(descriptor, QIODevice::ReadWrite | QIODevice::Unbuffered,
                               QFileDevice::AutoCloseHandle)) {
        close(descriptor);
        fail(EINVAL);
    }
}

} // namespace quillford
