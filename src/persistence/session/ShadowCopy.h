#pragma once

#include <QByteArray>
#include <QString>

namespace quillford {

/// The copy that keeps an opened project as the user last saved it, while the project's own file is
/// saved every few seconds. Two programs may come upon one name for their copies, so that a copy
/// counts as this run's own only while it holds what this run wrote.
class ShadowCopy {
public:
    /// Keeps in mind what a copy holds that was just written whole. Raises `Error` when it cannot
    /// be read; no copy is this run's own then.
    void remember(const QString& path);

    /// From now on no copy is this run's own, until one is remembered.
    void forget() { digest_.clear(); }

    /// Whether the file holds what was remembered. Without a file, or one that can be read: false.
    [[nodiscard]] bool isOwn(const QString& path) const;

    /// Makes `target` hold what the copy holds. Raises `Error` when the copy is not this run's own,
    /// or cannot be read, or the target cannot be written; the target stays as it was then.
    void putBack(const QString& path, const QString& target) const;

    /// Deletes the copy. One that holds something else belongs to another program and stays.
    void deleteCopy(const QString& path) const;

private:
    [[nodiscard]] bool isOwnContent(const QByteArray& content) const;

    QByteArray digest_; ///< of the remembered content, its length before it; empty for none
};

} // namespace quillford
