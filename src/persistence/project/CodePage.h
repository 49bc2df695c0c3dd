#pragma once

#include "persistence/compound/ByteStore.h"

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <optional>

namespace quillford {

/// A numbered encoding of text, as the code page property of a set names it. 1252, UTF-8 (65001)
/// and UTF-16 (1200) are always known; of the others, those that the toolkit knows. Bytes of an
/// unknown one are read as 1252, and no text can be written in it.
class CodePage {
public:
    static constexpr quint16 Western = 1252;
    static constexpr quint16 Utf16 = 1200;
    static constexpr quint16 Utf8 = 65001;

    explicit CodePage(quint16 number = Western) : number_(number) {}

    [[nodiscard]] quint16 number() const { return number_; }

    [[nodiscard]] bool isUtf16() const { return number_ == Utf16; }

    /// The bytes of one unit of a text, as the lengths in dictionaries count them.
    [[nodiscard]] std::size_t unitLength() const { return isUtf16() ? 2 : 1; }

    /// The text up to its terminator, or to the end of the bytes. What makes no sense in the code
    /// page becomes a replacement character.
    [[nodiscard]] QString decode(Bytes bytes) const;

    /// The bytes of the text without a terminator; nothing when the code page cannot hold all of
    /// it.
    [[nodiscard]] std::optional<QByteArray> encode(QStringView text) const;

private:
    quint16 number_;
};

} // namespace quillford
