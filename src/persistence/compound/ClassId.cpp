#include "persistence/compound/ClassId.h"

#include "persistence/compound/StorageError.h"

#include <QUuid>

#include <algorithm>

namespace quillford {

namespace {

/// The text has the big end of the first three groups first and the file has the little end: the
/// place in the text's bytes of each byte in the file.
constexpr std::array<std::size_t, 16> TextOrder = {3, 2, 1,  0,  5,  4,  7,  6,
                                                   8, 9, 10, 11, 12, 13, 14, 15};

} // namespace

ClassId ClassId::fromText(const QString& text) {
    const QUuid uuid(text);
    constexpr qsizetype BracedLength = 38;
    if (text.size() != BracedLength || uuid.toString().compare(text, Qt::CaseInsensitive) != 0)
        throw storageError(StorageCode::InvalidParameter, text);
    const QByteArray inTextOrder = uuid.toRfc4122();
    ClassId id;
    for (std::size_t i = 0; i < id.bytes.size(); ++i)
        id.bytes[i] = static_cast<std::byte>(inTextOrder[static_cast<qsizetype>(TextOrder[i])]);
    return id;
}

QString ClassId::toText() const {
    QByteArray inTextOrder(static_cast<qsizetype>(bytes.size()), '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i)
        inTextOrder[static_cast<qsizetype>(TextOrder[i])] = static_cast<char>(bytes[i]);
    return QUuid::fromRfc4122(inTextOrder).toString().toUpper();
}

} // namespace quillford
