#pragma once

#include <QString>

#include <compare>
#include <memory>
#include <variant>

namespace quillford {

class StorableObject;

/// A fixed-point number: a signed 64-bit integer that holds the number times 10000.
struct Currency {
    qint64 tenThousandths = 0;

    [[nodiscard]] auto operator<=>(const Currency&) const = default;
};

/// A point in time as a number of days and a fraction, counted from the end of 30 December 1899.
struct Date {
    double days = 0;

    [[nodiscard]] auto operator<=>(const Date&) const = default;
};

/// The type codes of values as plain numbers.
namespace FieldType {
constexpr qint32 Empty = 0;
constexpr qint32 Int16 = 2;
constexpr qint32 Int32 = 3;
constexpr qint32 Float32 = 4;
constexpr qint32 Float64 = 5;
constexpr qint32 Currency = 6;
constexpr qint32 Date = 7;
constexpr qint32 String = 8;
constexpr qint32 Object = 9;
constexpr qint32 Boolean = 11;
constexpr qint32 Byte = 17;
} // namespace FieldType

/// A value of one of the types that `Stream::WriteData` and `ReadData` know; `std::monostate` is
/// the empty value, which stands for every type that they do not know. An object may be nothing.
using FieldValue = std::variant<std::monostate, qint16, qint32, float, double, Currency, Date,
                                QString, std::shared_ptr<StorableObject>, bool, quint8>;

} // namespace quillford
