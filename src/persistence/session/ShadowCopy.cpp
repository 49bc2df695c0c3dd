#include "persistence/session/ShadowCopy.h"

#include "base/Error.h"
#include "base/Files.h"

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

} // namespace

void ShadowCopy::remember(const QString& path) {
    forget();
    digest_ = digestOf(contentOfFile(path));
}

bool ShadowCopy::isOwn(const QString& path) const {
    if (!QFileInfo(path).isFile())
        return false;
    try {
        return isOwnContent(contentOfFile(path));
    } catch (const Error&) {
        return false; // what cannot be read cannot be told to be this run's own
    }
}

bool ShadowCopy::isOwnContent(const QByteArray& content) const {
    return digestOf(content) == digest_;
}

void ShadowCopy::putBack(const QString& path, const QString& target) const {
    const QByteArray content = contentOfFile(path);
    if (!isOwnContent(content))
        throw Error(BadFileName, QStringLiteral("it is not the copy that was written"), path);
    replaceFile(target, content);
}

void ShadowCopy::deleteCopy(const QString& path) const {
    if (isOwn(path))
        QFile::remove(path);
}

} // namespace quillford
