#pragma once

#include "persistence/compound/ByteStore.h"
#include "persistence/project/CodePage.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <optional>
#include <vector>

namespace quillford {

/// The names that a property set gives to its properties. Case makes no difference.
class PropertyDictionary {
public:
    explicit PropertyDictionary(CodePage codePage) : codePage_(codePage) {}

    /// The dictionary in `bytes`. Of a damaged one, the names before the damage.
    PropertyDictionary(Bytes bytes, CodePage codePage);

    /// The identifier of the first property of this name.
    [[nodiscard]] std::optional<quint32> identifierOf(const QString& name) const;

    /// The first name of a property; null when it has none.
    [[nodiscard]] QString nameOf(quint32 identifier) const { return names_.value(identifier); }

    /// Adds a name, which is none of those that are there. Raises `InvalidName` for an empty one,
    /// one of more than 255 code units, one that holds a zero character, and one that the code page
    /// cannot hold; and the error of a damaged set for a dictionary that is damaged.
    void add(quint32 identifier, const QString& name);

    /// The bytes of the dictionary, up to a multiple of 4.
    [[nodiscard]] QByteArray encoded() const;

private:
    /// A name as it stands, the terminator included: a text that was not understood is not lost.
    struct Entry {
        quint32 identifier;
        QByteArray name;
    };

    void keep(quint32 identifier, const QByteArray& name);

    CodePage codePage_;
    std::vector<Entry> entries_;
    QHash<quint32, QString> names_;
    QHash<QString, quint32> identifiers_; ///< by the name in lower case
    bool isDamaged_ = false;
};

} // namespace quillford
