#include "platform/linux/FileLock.h"

#include "base/Error.h"

#include <QDeadlineTimer>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace quillford {

namespace {

// The system offers no wait with a time limit, and a lock is held for milliseconds.
constexpr std::chrono::microseconds BetweenTries(200);

int openedLockFile(const QString& path) {
    // Closed in child programs, which would otherwise hold the lock for as long as they run.
    const int descriptor =
        open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (const int number = errno; descriptor < 0)
        throw Error(number, QStringLiteral("The lock file \"%1\" cannot be made: %2")
                                .arg(path, qt_error_string(number)));
    return descriptor;
}

/// 0, or the error number with which waiting ended.
int waitForLock(int descriptor, QDeadlineTimer deadline) {
    while (flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        const int number = errno;
        if ((number != EWOULDBLOCK && number != EINTR) || deadline.hasExpired())
            return number;
        std::this_thread::sleep_for(BetweenTries);
    }
    return 0;
}

} // namespace

FileLock::FileLock(const QString& path, std::chrono::milliseconds patience)
    : descriptor_(openedLockFile(path)) {
    if (const int number = waitForLock(descriptor_, QDeadlineTimer(patience)); number != 0) {
        close(descriptor_);
        throw Error(number, QStringLiteral("The lock file \"%1\" cannot be locked: %2")
                                .arg(path, qt_error_string(number)));
    }
}

FileLock::~FileLock() {
    close(descriptor_);
}

} // namespace quillford
