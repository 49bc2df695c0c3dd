#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>

#include <cerrno>
#include <cstring>
#include <gtest/gtest.h>
#include <sys/mount.h>

namespace quillford {

/// Why a test that needs a `SmallDisk` is skipped.
constexpr const char* NoSmallDisk = "only the system's administrator can put a small disk here";

/// A disk of a few bytes in a folder for a scope, which really fills up. Only the system's
/// administrator may do that: elsewhere there is none, and `isThere` says so.
class SmallDisk {
public:
    /// Makes the folder, too.
    SmallDisk(const QString& folder, int kilobytes) : folder_(QFile::encodeName(folder)) {
        EXPECT_TRUE(QDir().mkpath(folder));
        isThere_ = mount("none", folder_.constData(), "tmpfs", 0, size(kilobytes).constData()) == 0;
    }

    ~SmallDisk() {
        if (isThere_) {
            EXPECT_EQ(umount2(folder_.constData(), MNT_DETACH), 0) << std::strerror(errno);
        }
    }

    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    SmallDisk(SmallDisk&&) = delete;
    SmallDisk& operator=(SmallDisk&&) = delete;

    [[nodiscard]] bool isThere() const { return isThere_; }

    /// Gives the disk another size; what lies on it stays.
    void resize(int kilobytes) const { remount(0, size(kilobytes)); }

    /// Nothing on the disk can be changed until it is made writable again.
    void setWritable(bool writable) const { remount(writable ? 0 : MS_RDONLY, {}); }

private:
    static QByteArray size(int kilobytes) { return "size=" + QByteArray::number(kilobytes) + "k"; }

    void remount(unsigned long flags, const QByteArray& options) const {
        EXPECT_EQ(
            mount("none", folder_.constData(), nullptr, MS_REMOUNT | flags, options.constData()), 0)
            << std::strerror(errno);
    }

    QByteArray folder_;
    bool isThere_ = false;
};

} // namespace quillford
