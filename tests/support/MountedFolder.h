#pragma once

#include <QDir>
#include <QString>

#include <sys/mount.h>

namespace quillford {

/// A small file system of its own in a folder, for a scope. Only a user who may mount has one; for
/// others the folder is plain.
class MountedFolder {
public:
    /// Makes the folder `path`, with a file system of these options, "size=4k".
    MountedFolder(const QString& path, const QByteArray& options, unsigned long flags = 0)
        : path_(path.toUtf8()) {
        QDir().mkpath(path);
        mounted_ = mount("tmpfs", path_.constData(), "tmpfs", flags, options.constData()) == 0;
    }

    ~MountedFolder() {
        if (mounted_)
            umount2(path_.constData(), MNT_DETACH);
    }

    MountedFolder(const MountedFolder&) = delete;
    MountedFolder& operator=(const MountedFolder&) = delete;
    MountedFolder(MountedFolder&&) = delete;
    MountedFolder& operator=(MountedFolder&&) = delete;

    [[nodiscard]] bool isMounted() const { return mounted_; }

private:
    QByteArray path_;
    bool mounted_ = false;
};

} // namespace quillford
