#include "persistence/project/PropertyDictionary.h"

#include "base/Error.h"
#include "base/Text.h"
#include "persistence/compound/StorageError.h"
#include "persistence/project/PropertyBytes.h"

#include <algorithm>

namespace quillford {

using namespace propertyset;

PropertyDictionary::PropertyDictionary(Bytes bytes, CodePage codePage) : codePage_(codePage) {
    ByteCursor cursor(bytes);
    try {
        for (auto left = cursor.takeNumber<quint32>(); left > 0; --left) {
            const auto identifier = cursor.takeNumber<quint32>();
            const auto length = cursor.takeNumber<quint32>();
            const Bytes name = cursor.take(std::size_t{length} * codePage.unitLength());
            keep(identifier, arrayOf(name));
            // Wide names begin at a multiple of 4; of the last one the padding may be missing.
            if (codePage.isUtf16())
                (void)cursor.take(std::min(aligned(name.size()) - name.size(), cursor.left()));
        }
    } catch (const Error&) {
        isDamaged_ = true; // the names read so far are kept; `add` refuses to write it anew
    }
}

void PropertyDictionary::keep(quint32 identifier, const QByteArray& name) {
    entries_.push_back({identifier, name});
    const QString text = codePage_.decode(bytesOf(name));
    const QString key = lowerCase(text);
    if (!names_.contains(identifier))
        names_.insert(identifier, text);
    if (!identifiers_.contains(key))
        identifiers_.insert(key, identifier);
}

std::optional<quint32> PropertyDictionary::identifierOf(const QString& name) const {
    const auto found = identifiers_.constFind(lowerCase(name));
    return found == identifiers_.constEnd() ? std::nullopt : std::optional(*found);
}

void PropertyDictionary::add(quint32 identifier, const QString& name) {
    if (isDamaged_)
        raiseDamaged(QStringLiteral("a name in its dictionary is cut off"), 0);
    const bool fits = !name.isEmpty() && name.size() <= LongestName && !name.contains(QChar(u'\0'));
    const auto bytes = codePage_.encode(name);
    if (!fits || !bytes)
        throw storageError(StorageCode::InvalidName, name);
    keep(identifier, *bytes + QByteArray(static_cast<qsizetype>(codePage_.unitLength()), '\0'));
}

QByteArray PropertyDictionary::encoded() const {
    QByteArray bytes;
    appendNumber(bytes, static_cast<quint32>(entries_.size()));
    for (const Entry& entry : entries_) {
        const auto length = static_cast<std::size_t>(entry.name.size()) / codePage_.unitLength();
        appendNumber(bytes, entry.identifier);
        appendNumber(bytes, static_cast<quint32>(length));
        bytes += entry.name;
        if (codePage_.isUtf16())
            align(bytes);
    }
    align(bytes);
    return bytes;
}

} // namespace quillford
