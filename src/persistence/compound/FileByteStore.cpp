#include "persistence/compound/FileByteStore.h"

#include "persistence/compound/StorageError.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>
#include <utility>

namespace quillford {

namespace {

/// Repeats a system call for as long as a signal interrupts it.
template <typename Call>
auto retried(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

int openDescriptor(const QString& path, int flags) {
    // Without O_NONBLOCK a pipe in the file's place would make the program wait for ever.
    return retried([&] {
        return ::open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC | O_NONBLOCK | flags,
                      0666);
    });
}

/// The system takes a bounded number of parts at a time. Longer lists go out in several calls.
constexpr std::size_t MostParts = 64;

struct PartCursor {
    std::span<const Bytes> parts;
    std::size_t used = 0; // bytes of the first part that are written already

    [[nodiscard]] bool atEnd() const { return parts.empty(); }

    std::span<const iovec> next(std::array<iovec, MostParts>& vectors) const {
        const std::size_t count = std::min(parts.size(), MostParts);
        for (std::size_t i = 0; i < count; ++i) {
            const Bytes part = i == 0 ? parts[0].subspan(used) : parts[i];
            vectors[i] = {const_cast<std::byte*>(part.data()), part.size()};
        }
        return {vectors.data(), count};
    }

    void advance(std::size_t bytes) {
        while (!parts.empty() && bytes >= parts[0].size() - used) {
            bytes -= parts[0].size() - used;
            parts = parts.subspan(1);
            used = 0;
        }
        used += bytes;
    }
};

} // namespace

FileByteStore::FileByteStore(QString path, int descriptor, Place place)
    : path_(std::move(path)), descriptor_(descriptor), place_(place) {
    if (descriptor_ == -1)
        throw storageError(codeOfOpenFailure(errno, path_), path_);
}

std::unique_ptr<FileByteStore> FileByteStore::open(const QString& path) {
    // Nobody loses the race so often; only a file system on which files cannot be told apart does.
    constexpr int MostTries = 100;
    std::unique_ptr<FileByteStore> store;
    for (int tries = 0; tries < MostTries && (!store || !store->standsInPlace()); ++tries) {
        store.reset(new FileByteStore(path, openDescriptor(path, 0), Place::Named));
        store->lockRegularFile();
    }
    return store;
}

std::unique_ptr<FileByteStore> FileByteStore::create(const QString& path) {
    if (QFile::exists(path))
        throw storageError(StorageCode::FileAlreadyExists, path);
    int descriptor = openDescriptor(QFileInfo(path).path(), O_TMPFILE);
    Place place = Place::Unnamed;
    if (descriptor == -1 && (errno == EOPNOTSUPP || errno == EISDIR || errno == EINVAL)) {
        descriptor = openDescriptor(path, O_CREAT | O_EXCL);
        place = Place::Provisional;
    }
    std::unique_ptr<FileByteStore> store(new FileByteStore(path, descriptor, place));
    store->lockRegularFile();
    return store;
}

void FileByteStore::giveName() {
    const QByteArray self = "/proc/self/fd/" + QByteArray::number(descriptor_);
    if (place_ == Place::Unnamed &&
        linkat(AT_FDCWD, self.constData(), AT_FDCWD, QFile::encodeName(path_).constData(),
               AT_SYMLINK_FOLLOW) != 0)
        throw storageError(codeOfOpenFailure(errno, path_), path_);
    place_ = Place::Named;
}

FileByteStore::~FileByteStore() {
    if (place_ == Place::Provisional)
        QFile::remove(path_);
    ::close(descriptor_);
}

void FileByteStore::lockRegularFile() {
    struct stat status {};

    if (fstat(descriptor_, &status) != 0 || !S_ISREG(status.st_mode))
        throw storageError(StorageCode::AccessDenied, path_);
    if (retried([&] { return flock(descriptor_, LOCK_EX | LOCK_NB); }) != 0)
        throw storageError(codeOfOpenFailure(errno, path_), path_);
}

/// False when another file has taken the place of this one before it was locked.
bool FileByteStore::standsInPlace() const {
    struct stat own {};

    struct stat named {};

    return fstat(descriptor_, &own) == 0 &&
           ::stat(QFile::encodeName(path_).constData(), &named) == 0 &&
           own.st_ino == named.st_ino && own.st_dev == named.st_dev;
}

quint64 FileByteStore::size() {
    struct stat status {};

    if (fstat(descriptor_, &status) != 0)
        throw storageError(StorageCode::ReadFault, path_);
    return static_cast<quint64>(status.st_size);
}

std::size_t FileByteStore::read(quint64 offset, MutableBytes into) {
    std::size_t done = 0;
    while (done < into.size()) {
        const ssize_t count = retried([&] {
            return pread(descriptor_, into.data() + done, into.size() - done,
                         static_cast<off_t>(offset + done));
        });
        if (count < 0)
            throw storageError(StorageCode::ReadFault, path_, static_cast<qint64>(offset));
        if (count == 0)
            break;
        done += static_cast<std::size_t>(count);
    }
    return done;
}

void FileByteStore::write(quint64 offset, std::span<const Bytes> parts) {
    PartCursor cursor{parts};
    cursor.advance(0);
    std::array<iovec, MostParts> vectors;
    while (!cursor.atEnd()) {
        const auto next = cursor.next(vectors);
        const ssize_t count = retried([&] {
            return pwritev(descriptor_, next.data(), static_cast<int>(next.size()),
                           static_cast<off_t>(offset));
        });
        if (count <= 0)
            throw storageError(codeOfWriteFailure(count < 0 ? errno : ENOSPC), path_,
                               static_cast<qint64>(offset));
        offset += static_cast<quint64>(count);
        cursor.advance(static_cast<std::size_t>(count));
    }
}

void FileByteStore::truncate(quint64 size) {
    if (retried([&] { return ftruncate(descriptor_, static_cast<off_t>(size)); }) != 0)
        throw storageError(codeOfWriteFailure(errno), path_);
}

void FileByteStore::sync() {
    if (retried([&] { return fsync(descriptor_); }) != 0)
        throw storageError(codeOfWriteFailure(errno), path_);
}

} // namespace quillford
