#pragma once

#include "persistence/compound/ClassId.h"
#include "persistence/compound/FieldValue.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <algorithm>
#include <chrono>
#include <compare>
#include <variant>

namespace quillford {

/// A span of time in units of 100 nanoseconds.
using FileTimeSpan = std::chrono::duration<qint64, std::ratio<1, 10'000'000>>;

/// A point in time, in units of 100 nanoseconds since the beginning of 1601 in UTC; or a span of
/// time in the same units, where the property is one (the editing time). 0 is no time at all.
struct FileTime {
    quint64 ticks = 0;

    /// The nearest earlier millisecond, in UTC; invalid for no time.
    [[nodiscard]] QDateTime toDateTime() const;

    /// No time for an invalid point in time, and for one before 1601.
    [[nodiscard]] static FileTime fromDateTime(const QDateTime& time);

    [[nodiscard]] FileTimeSpan toSpan() const { return FileTimeSpan(static_cast<qint64>(ticks)); }

    /// An empty span for a negative one.
    [[nodiscard]] static FileTime fromSpan(FileTimeSpan span) {
        return {static_cast<quint64>(std::max<qint64>(span.count(), 0))};
    }

    [[nodiscard]] auto operator<=>(const FileTime&) const = default;
};

/// A value of a type that the program does not take apart (a picture, a list), or one that is
/// damaged: the type and the bytes behind it as they stand in the set, the padding included.
struct OpaqueValue {
    quint32 type = 0;
    QByteArray bytes;

    [[nodiscard]] bool operator==(const OpaqueValue&) const = default;
};

/// The value of a property. `std::monostate` is the empty value, also that of a property that is
/// not there.
using PropertyValue =
    std::variant<std::monostate, bool, qint8, quint8, qint16, quint16, qint32, quint32, qint64,
                 quint64, float, double, Currency, Date, QString, FileTime, ClassId, OpaqueValue>;

/// The value as text, number, point or span of time. A value of another kind, or a number that does
/// not fit, gives the empty text, 0, an invalid point in time and an empty span.
template <typename Type>
[[nodiscard]] Type propertyAs(const PropertyValue& value);
template <>
[[nodiscard]] QString propertyAs<QString>(const PropertyValue& value);
template <>
[[nodiscard]] qint32 propertyAs<qint32>(const PropertyValue& value);
template <>
[[nodiscard]] QDateTime propertyAs<QDateTime>(const PropertyValue& value);
template <>
[[nodiscard]] FileTimeSpan propertyAs<FileTimeSpan>(const PropertyValue& value);

[[nodiscard]] inline PropertyValue propertyFrom(const QString& text) {
    return text;
}

[[nodiscard]] inline PropertyValue propertyFrom(qint32 number) {
    return number;
}

[[nodiscard]] inline PropertyValue propertyFrom(const QDateTime& time) {
    return FileTime::fromDateTime(time);
}

[[nodiscard]] inline PropertyValue propertyFrom(FileTimeSpan span) {
    return FileTime::fromSpan(span);
}

} // namespace quillford
