#include "persistence/session/ShadowCopy.h"

#include "base/Error.h"
#include "base/Files.h"
#include "persistence/compound/FileByteStore.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace quillford {

namespace {

constexpr qint64 BadFileName = 52;

QByteArray digestOf(const QByteArray& content) {
    return QByteArray::number(content.size()) + ' ' +
           QCryptographicHash::hash(content, QCryptographicHash::Sha256);
}

/// The digest of a file; nothing for one that is not there or cannot be read, whose content nobody
/// can know.
QByteArray digestOfFile(const QString& path) {
    if (!QFileInfo(path).isFile())
        return {};
    try {
        return digestOf(contentOfFile(path));
    } catch (const Error&) {
        return {};
    }
}

} // namespace

void ShadowCopy::remember(const QString& path, const QString& target) {
    forget();
    targetDigest_ = digestOfFile(target);
    digest_ = digestOf(contentOfFile(path));
}

void ShadowCopy::forget() {
    digest_.clear();
    targetDigest_.clear();
}

bool ShadowCopy::isOwn(const QString& path) const {
    return !digest_.isEmpty() && digestOfFile(path) == digest_;
}

void ShadowCopy::putBack(const QString& path, const QString& target) const {
    const QByteArray content = contentOfFile(path);
    if (digestOf(content) != digest_)
        throw Error(BadFileName, QStringLiteral("it is not the copy that was written"), path);
    if (!targetDigest_.isEmpty() && digestOfFile(target) == targetDigest_)
        return;
    // Another program may be in the middle of a save into the file that is to go.
    const auto old = QFileInfo::exists(target) ? FileByteStore::open(target) : nullptr;
    replaceFile(target, content);
}

void ShadowCopy::deleteCopy(const QString& path) const {
    if (isOwn(path))
        QFile::remove(path);
}

} // namespace quillford
