#include "storage_probe/Props.h"

#include "base/Error.h"

#include <array>
#include <type_traits>
#include <utility>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

struct SetName {
    qint32 number;
    const char* name;
};

constexpr std::array SetNames = {
    SetName{DocProperties::SummaryInformation, "summary information"},
    SetName{DocProperties::DocumentSummaryInformation, "document summary information"},
    SetName{DocProperties::UserDefined, "user-defined properties"}};

struct Row {
    qint32 set;
    quint32 identifier;
    const char* name;
    bool isSpan;
};

#define QF_DOC_PROPERTY(name, set, identifier, type)                                               \
    Row{DocProperties::set, identifier, #name, std::is_same_v<type, FileTimeSpan>},
constexpr std::array Rows = {
#include "persistence/project/DocPropertyRows.def"
};
#undef QF_DOC_PROPERTY

const Row* rowOf(qint32 set, quint32 identifier) {
    for (const Row& row : Rows) {
        if (row.set == set && row.identifier == identifier)
            return &row;
    }
    return nullptr;
}

QString textOf(FileTime time, bool isSpan) {
    if (!isSpan)
        return time.toDateTime().toString(Qt::ISODateWithMs);
    return QString::number(std::chrono::duration<double>(time.toSpan()).count()) + u" s"_s;
}

QString textOf(const PropertyValue& value, bool isSpan) {
    return std::visit(
        [isSpan](const auto& held) -> QString {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, std::monostate>)
                return u"(empty)"_s;
            else if constexpr (std::is_same_v<Held, bool>)
                return held ? u"true"_s : u"false"_s;
            else if constexpr (std::is_arithmetic_v<Held>)
                return QString::number(held);
            else if constexpr (std::is_same_v<Held, Currency>)
                return QString::number(static_cast<double>(held.tenThousandths) / 10'000, 'f', 4);
            else if constexpr (std::is_same_v<Held, Date>)
                return QString::number(held.days) + u" days"_s;
            else if constexpr (std::is_same_v<Held, FileTime>)
                return textOf(held, isSpan);
            else if constexpr (std::is_same_v<Held, ClassId>)
                return held.toText();
            else if constexpr (std::is_same_v<Held, OpaqueValue>)
                return u"type %1: %2"_s.arg(held.type).arg(QString::fromLatin1(held.bytes.toHex()));
            else
                return held;
        },
        value);
}

QString line(const DocProperties& properties, qint32 set, const PropertyInfo& info) {
    const Row* row = rowOf(set, info.identifier);
    const QString name = row != nullptr ? QString::fromLatin1(row->name) : info.name;
    const PropertyValue value = properties.GetPropertyByName(set, info.identifier);
    return u"  %1 "_s.arg(info.identifier) + name + u" = "_s +
           textOf(value, row != nullptr && row->isSpan) + u'\n';
}

/// The set's properties; none when the set is not there.
std::vector<PropertyInfo> propertiesOf(const DocProperties& properties, qint32 set, bool& isThere) {
    try {
        isThere = true;
        return properties.EnumProperties(set);
    } catch (const Error& error) {
        if (error.description() != u"The property set does not exist.")
            throw;
        isThere = false;
        return {};
    }
}

} // namespace

QByteArray propsAsText(const DocProperties& properties) {
    QString text;
    for (const SetName& set : SetNames) {
        bool isThere = false;
        const std::vector<PropertyInfo> infos = propertiesOf(properties, set.number, isThere);
        if (isThere)
            text += QString::fromLatin1(set.name) + u'\n';
        for (const PropertyInfo& info : infos)
            text += line(properties, set.number, info);
    }
    return text.toUtf8();
}
