#include "persistence/project/CodePage.h"

#include "persistence/project/PropertyBytes.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <algorithm>
#include <array>

namespace quillford {

namespace {

/// The characters of 1252 from 0x80 to 0x9F; all others are those of Latin-1. The five bytes that
/// stand for nothing are read as the control characters of their number.
constexpr std::array<char16_t, 32> WesternRow = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr int WesternRowStart = 0x80;

QString decodeWestern(QByteArrayView bytes) {
    QString text = QString::fromLatin1(bytes);
    for (QChar& unit : text) {
        const int place = unit.unicode() - WesternRowStart;
        if (place >= 0 && place < static_cast<int>(WesternRow.size()))
            unit = QChar(WesternRow[static_cast<std::size_t>(place)]);
    }
    return text;
}

std::optional<QByteArray> encodeWestern(QStringView text) {
    QByteArray bytes;
    for (const QChar unit : text) {
        const char16_t code = unit.unicode();
        const auto found = std::ranges::find(WesternRow, code);
        if (found != WesternRow.end())
            bytes += static_cast<char>(WesternRowStart + (found - WesternRow.begin()));
        else if (code < 0x100 && (code < 0x80 || code > 0x9F))
            bytes += static_cast<char>(code);
        else
            return std::nullopt;
    }
    return bytes;
}

QString decodeUtf16(Bytes bytes) {
    QString text;
    for (std::size_t place = 0; place + sizeof(char16_t) <= bytes.size();
         place += sizeof(char16_t)) {
        const auto unit = loadLittleEndian<char16_t>(bytes, place);
        if (unit == 0)
            break;
        text += QChar(unit);
    }
    return text;
}

QByteArray encodeUtf16(QStringView text) {
    QByteArray bytes;
    for (const QChar unit : text)
        propertyset::appendNumber<char16_t>(bytes, unit.unicode());
    return bytes;
}

/// The toolkit's names of a code page, the likeliest first.
std::array<QByteArray, 2> toolkitNames(quint16 number) {
    constexpr quint16 FirstIso = 28591;
    constexpr quint16 LastIso = 28605;
    if (number >= FirstIso && number <= LastIso)
        return {"ISO-8859-" + QByteArray::number(number - FirstIso + 1)};
    switch (number) {
    case CodePage::Utf8:
        return {"UTF-8"};
    case 10000:
        return {"macintosh"};
    case 20127:
        return {"US-ASCII"};
    case 20866:
        return {"KOI8-R"};
    default:
        return {"windows-" + QByteArray::number(number), "cp" + QByteArray::number(number)};
    }
}

/// The toolkit's `Converter` (a decoder or an encoder) of a code page, if it has one.
template <typename Converter>
std::optional<Converter> converterOf(quint16 number) {
    for (const QByteArray& name : toolkitNames(number)) {
        Converter converter(name.constData(), QStringConverter::Flag::Stateless);
        if (!name.isEmpty() && converter.isValid())
            return converter;
    }
    return std::nullopt;
}

} // namespace

QString CodePage::decode(Bytes bytes) const {
    if (isUtf16())
        return decodeUtf16(bytes);
    const auto end = std::ranges::find(bytes, std::byte{0});
    const QByteArrayView view(reinterpret_cast<const char*>(bytes.data()), end - bytes.begin());
    if (number_ != Western) {
        if (auto decoder = converterOf<QStringDecoder>(number_))
            return (*decoder)(view);
    }
    return decodeWestern(view);
}

std::optional<QByteArray> CodePage::encode(QStringView text) const {
    if (isUtf16())
        return encodeUtf16(text);
    if (number_ == Western)
        return encodeWestern(text);
    auto encoder = converterOf<QStringEncoder>(number_);
    if (!encoder)
        return std::nullopt;
    const QByteArray bytes = (*encoder)(text);
    // The converter's own word on errors is not relied on: some code pages have stand-ins.
    if (decode(propertyset::bytesOf(bytes)) != text)
        return std::nullopt;
    return bytes;
}

} // namespace quillford
