#include "persistence/project/PropertyEncoding.h"

#include "base/Error.h"
#include "persistence/project/PropertyBytes.h"

#include <algorithm>
#include <bit>

namespace quillford {

using namespace propertyset;

namespace {

QString takeText(ByteCursor& cursor, CodePage codePage, std::size_t unitLength) {
    const auto length = cursor.takeNumber<quint32>();
    return codePage.decode(cursor.take(std::size_t{length} * unitLength));
}

ClassId takeClassId(ByteCursor& cursor) {
    ClassId id;
    std::ranges::copy(cursor.take(id.bytes.size()), id.bytes.begin());
    return id;
}

PropertyValue takeValue(quint32 type, ByteCursor& cursor, CodePage codePage) {
    switch (type) {
    case Empty:
    case Null:
        return std::monostate();
    case Int8:
        return cursor.takeNumber<qint8>();
    case Byte:
        return cursor.takeNumber<quint8>();
    case Int16:
        return cursor.takeNumber<qint16>();
    case UInt16:
        return cursor.takeNumber<quint16>();
    case Int32:
    case Int:
        return cursor.takeNumber<qint32>();
    case UInt32:
    case UInt:
        return cursor.takeNumber<quint32>();
    case Int64:
        return cursor.takeNumber<qint64>();
    case UInt64:
        return cursor.takeNumber<quint64>();
    case Float32:
        return std::bit_cast<float>(cursor.takeNumber<quint32>());
    case Float64:
        return std::bit_cast<double>(cursor.takeNumber<quint64>());
    case CurrencyType:
        return Currency{cursor.takeNumber<qint64>()};
    case DateType:
        return Date{std::bit_cast<double>(cursor.takeNumber<quint64>())};
    case Boolean:
        return cursor.takeNumber<qint16>() != 0;
    case CodePageText:
    case NarrowText:
        return takeText(cursor, codePage, 1);
    case WideText:
        return takeText(cursor, CodePage(CodePage::Utf16), sizeof(char16_t));
    case FileTimeType:
        return FileTime{cursor.takeNumber<quint64>()};
    case ClassIdType:
        return takeClassId(cursor);
    default:
        return OpaqueValue{type, arrayOf(cursor.take(cursor.left()))};
    }
}

/// Puts a value of each type behind its type.
class Encoder {
public:
    explicit Encoder(CodePage codePage) : codePage_(codePage) {}

    void operator()(std::monostate) { appendNumber<quint32>(bytes_, Empty); }

    void operator()(bool value) { put<qint16>(Boolean, value ? -1 : 0); }

    void operator()(qint8 value) { put(Int8, value); }

    void operator()(quint8 value) { put(Byte, value); }

    void operator()(qint16 value) { put(Int16, value); }

    void operator()(quint16 value) { put(UInt16, value); }

    void operator()(qint32 value) { put(Int32, value); }

    void operator()(quint32 value) { put(UInt32, value); }

    void operator()(qint64 value) { put(Int64, value); }

    void operator()(quint64 value) { put(UInt64, value); }

    void operator()(float value) { put(Float32, std::bit_cast<quint32>(value)); }

    void operator()(double value) { put(Float64, std::bit_cast<quint64>(value)); }

    void operator()(Currency value) { put(CurrencyType, value.tenThousandths); }

    void operator()(Date value) { put(DateType, std::bit_cast<quint64>(value.days)); }

    void operator()(FileTime value) { put(FileTimeType, value.ticks); }

    void operator()(const ClassId& value) {
        appendNumber<quint32>(bytes_, ClassIdType);
        bytes_ += arrayOf(value.bytes);
    }

    void operator()(const OpaqueValue& value) {
        appendNumber(bytes_, value.type);
        bytes_ += value.bytes;
    }

    void operator()(const QString& value) {
        const qsizetype end = value.indexOf(QChar(u'\0'));
        const QStringView text = QStringView(value).left(end < 0 ? value.size() : end);
        const auto narrow = codePage_.isUtf16() ? std::nullopt : codePage_.encode(text);
        if (narrow)
            putText(NarrowText, *narrow + '\0', 1);
        else
            putText(WideText, *CodePage(CodePage::Utf16).encode(text) + QByteArray(2, '\0'), 2);
    }

    [[nodiscard]] QByteArray aligned() {
        align(bytes_);
        return bytes_;
    }

private:
    template <typename Integer>
    void put(Type type, Integer value) {
        appendNumber<quint32>(bytes_, type);
        appendNumber(bytes_, value);
    }

    void putText(Type type, const QByteArray& text, qsizetype unitLength) {
        put(type, static_cast<quint32>(text.size() / unitLength));
        bytes_ += text;
    }

    CodePage codePage_;
    QByteArray bytes_;
};

} // namespace

PropertyValue decodeProperty(Bytes bytes, CodePage codePage) {
    ByteCursor cursor(bytes);
    const auto type = cursor.takeNumber<quint32>();
    try {
        return takeValue(type, cursor, codePage);
    } catch (const Error&) {
        // The one value is damaged; it is shown as it stands, and the others are not lost with it.
        return OpaqueValue{type, arrayOf(bytes.subspan(sizeof(type)))};
    }
}

QByteArray encodeProperty(const PropertyValue& value, CodePage codePage) {
    Encoder encoder(codePage);
    std::visit([&encoder](const auto& held) { encoder(held); }, value);
    return encoder.aligned();
}

} // namespace quillford
