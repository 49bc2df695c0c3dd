#pragma once

#include "base/ByteOrder.h"
#include "persistence/compound/ByteStore.h"
#include "persistence/project/PropertySetFormat.h"

#include <QByteArray>
#include <QString>

/// How the bytes of a property set are taken and put.
namespace quillford::propertyset {

/// Raises the error of a damaged property set: `fault` says what is wrong, `offset` where.
[[noreturn]] void raiseDamaged(const QString& fault, std::size_t offset);

[[nodiscard]] inline Bytes bytesOf(const QByteArray& array) {
    return std::as_bytes(std::span(array.data(), static_cast<std::size_t>(array.size())));
}

[[nodiscard]] inline QByteArray arrayOf(Bytes bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

[[nodiscard]] constexpr std::size_t aligned(std::size_t length) {
    return (length + Alignment - 1) / Alignment * Alignment;
}

/// Takes numbers and runs of bytes off a block. Every step is checked against what is left; one
/// that goes too far raises the error of a damaged set.
class ByteCursor {
public:
    explicit ByteCursor(Bytes bytes) : bytes_(bytes) {}

    [[nodiscard]] std::size_t position() const { return position_; }

    [[nodiscard]] std::size_t left() const { return bytes_.size() - position_; }

    [[nodiscard]] bool has(std::size_t count) const { return count <= left(); }

    [[nodiscard]] Bytes take(std::size_t count) {
        if (!has(count))
            raiseDamaged(QStringLiteral("it ends too early"), position_);
        position_ += count;
        return bytes_.subspan(position_ - count, count);
    }

    template <typename Integer>
    [[nodiscard]] Integer takeNumber() {
        return loadLittleEndian<Integer>(take(sizeof(Integer)), 0);
    }

private:
    Bytes bytes_;
    std::size_t position_ = 0;
};

template <typename Integer>
void appendNumber(QByteArray& to, Integer value) {
    const auto place = static_cast<std::size_t>(to.size());
    to.resize(to.size() + static_cast<qsizetype>(sizeof(Integer)));
    storeLittleEndian<Integer>(
        std::as_writable_bytes(std::span(to.data(), static_cast<std::size_t>(to.size()))), place,
        value);
}

/// Appends zeros up to the next multiple of 4.
inline void align(QByteArray& bytes) {
    bytes.resize(static_cast<qsizetype>(aligned(static_cast<std::size_t>(bytes.size()))), '\0');
}

} // namespace quillford::propertyset
