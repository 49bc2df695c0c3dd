#pragma once

#include <QByteArray>
#include <QString>

namespace quillford {

/// The copy that keeps an opened project as the user last saved it, while the project's own file is
/// saved every few seconds. Two programs may come upon one name for their copies, so that a copy
/// counts as this run's own only while it holds what this run wrote.
class ShadowCopy {
public:
    /// Keeps in mind what a copy holds that was just written whole, and what the project's file
    /// holds, `target`. Raises `Error` when the copy cannot be read; none is this run's own then.
    void remember(const QString& path, const QString& target);

    /// From now on no copy is this run's own, until one is remembered.
    void forget();

    /// Whether the file holds what was remembered. Without a file, or one that can be read: false.
    [[nodiscard]] bool isOwn(const QString& path) const;

    /// Makes `target` hold what the copy holds, unless it still is what it was when the copy was
    /// remembered: then there is nothing to take back, and it may well be write-protected. Raises
    /// `Error` when the copy is not this run's own, or cannot be read, or the target is in
    /// use or cannot be written; the target stays as it was then.
    void putBack(const QString& path, const QString& target) const;

    /// Deletes the copy. One that holds something else belongs to another program and stays.
    void deleteCopy(const QString& path) const;

private:
    QByteArray digest_;       ///< of the copy, its length before it; empty for none
    QByteArray targetDigest_; ///< of the project's file; empty where it could not be read
};

} // namespace quillford
