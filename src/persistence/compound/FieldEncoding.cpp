#include "persistence/compound/FieldEncoding.h"

#include "base/ByteOrder.h"
#include "persistence/compound/StorageError.h"
#include "persistence/compound/Stream.h"

#include <array>
#include <bit>
#include <vector>

namespace quillford {

namespace {

template <typename Integer>
qint32 writeInteger(Stream& stream, Integer value) {
    std::array<std::byte, sizeof(Integer)> bytes{};
    storeLittleEndian<Integer>(bytes, 0, value);
    return static_cast<qint32>(stream.write(bytes));
}

/// An integer of which the stream may hold nothing or only the first bytes: the others are zero.
template <typename Integer>
Integer readInteger(Stream& stream) {
    std::array<std::byte, sizeof(Integer)> bytes{};
    (void)stream.read(bytes);
    return loadLittleEndian<Integer>(bytes, 0);
}

qint32 writeString(Stream& stream, const QString& text) {
    writeInteger(stream, static_cast<qint32>(text.size()));
    if (text.isEmpty())
        return 0;
    constexpr std::size_t Unit = sizeof(char16_t);
    std::vector<std::byte> bytes(static_cast<std::size_t>(text.size()) * Unit);
    qToLittleEndian<quint16>(text.utf16(), text.size(), bytes.data());
    return static_cast<qint32>(stream.write(bytes));
}

QString readString(Stream& stream) {
    const auto count = readInteger<qint32>(stream);
    if (count <= 0)
        return {};
    constexpr qint64 Unit = sizeof(char16_t);
    stream.requireMemoryFor(count * Unit);
    QString text(count, QChar());
    const MutableBytes bytes = std::as_writable_bytes(std::span(text));
    (void)stream.read(bytes);
    qFromLittleEndian<quint16>(bytes.data(), text.size(), bytes.data());
    return text;
}

struct FieldWriter {
    Stream& stream;

    qint32 operator()(std::monostate) const { return 0; }

    qint32 operator()(qint16 value) const { return writeInteger(stream, value); }

    qint32 operator()(qint32 value) const { return writeInteger(stream, value); }

    qint32 operator()(float value) const {
        return writeInteger(stream, std::bit_cast<quint32>(value));
    }

    qint32 operator()(double value) const {
        return writeInteger(stream, std::bit_cast<quint64>(value));
    }

    qint32 operator()(Currency value) const { return writeInteger(stream, value.tenThousandths); }

    qint32 operator()(Date value) const { return (*this)(value.days); }

    qint32 operator()(const QString& value) const { return writeString(stream, value); }

    qint32 operator()(const std::shared_ptr<StorableObject>& value) const {
        writeObject(stream, value);
        return 0;
    }

    qint32 operator()(bool value) const {
        return writeInteger(stream, static_cast<qint16>(value ? -1 : 0));
    }

    qint32 operator()(quint8 value) const { return writeInteger(stream, value); }
};

template <typename Interface>
void saveAs(Stream& stream, Interface& object) {
    constexpr quint16 Mark = 0xFFFF;
    stream.write(object.GetClassID().bytes);
    writeInteger(stream, Mark);
    object.Save(stream, false);
}

template <typename Interface>
void loadAs(Stream& stream, StorableObject& object) {
    auto* const loader = dynamic_cast<Interface*>(&object);
    if (loader == nullptr)
        throw Error(ObjectRegistry::NoInterface,
                    QStringLiteral("The object cannot be read from a stream."));
    loader->Load(stream);
}

} // namespace

qint32 writeField(Stream& stream, const FieldValue& value) {
    return std::visit(FieldWriter{stream}, value);
}

FieldValue readField(Stream& stream, qint32 varType) {
    switch (varType) {
    case FieldType::Int16:
        return readInteger<qint16>(stream);
    case FieldType::Int32:
        return readInteger<qint32>(stream);
    case FieldType::Float32:
        return std::bit_cast<float>(readInteger<quint32>(stream));
    case FieldType::Float64:
        return std::bit_cast<double>(readInteger<quint64>(stream));
    case FieldType::Currency:
        return Currency{readInteger<qint64>(stream)};
    case FieldType::Date:
        return Date{std::bit_cast<double>(readInteger<quint64>(stream))};
    case FieldType::String:
        return readString(stream);
    case FieldType::Boolean:
        return readInteger<qint16>(stream) != 0;
    default:
        return std::monostate{};
    }
}

void writeObject(Stream& stream, const std::shared_ptr<StorableObject>& object) {
    if (!object) {
        stream.write(ClassId{}.bytes);
    } else if (auto* const plain = dynamic_cast<IPersistStream*>(object.get())) {
        saveAs(stream, *plain);
    } else if (auto* const init = dynamic_cast<IPersistStreamInit*>(object.get())) {
        saveAs(stream, *init);
    } else {
        throw Error(ObjectRegistry::NoInterface,
                    QStringLiteral("The object must implement IPersistStream or "
                                   "IPersistStreamInit"));
    }
}

std::shared_ptr<StorableObject> readObject(Stream& stream, const ObjectRegistry& registry) {
    ClassId classId;
    (void)stream.read(classId.bytes);
    if (classId.isNull())
        return nullptr;
    // The two bytes choose the interface that reads; they do not tell which one wrote.
    const bool asPlain = readInteger<quint16>(stream) != 0;
    const std::shared_ptr<StorableObject> object = registry.make(classId);
    if (asPlain)
        loadAs<IPersistStream>(stream, *object);
    else
        loadAs<IPersistStreamInit>(stream, *object);
    return object;
}

} // namespace quillford
