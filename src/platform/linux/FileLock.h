#pragma once

#include <QString>

#include <chrono>

namespace quillford {

/// Holds a lock file for as long as it lives, against other programs and against other locks of
/// this one. The system lets go of it when the program dies, however it dies. The file itself is
/// empty and stays.
class FileLock {
public:
    /// Makes the lock file `path` if needed and waits for it. Raises `Error` when the file cannot
    /// be made, or is still held by another after `patience`.
    FileLock(const QString& path, std::chrono::milliseconds patience);
    ~FileLock();

    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    FileLock(FileLock&&) = delete;
    FileLock& operator=(FileLock&&) = delete;

private:
    int descriptor_;
};

} // namespace quillford
