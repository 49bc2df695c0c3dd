#include "persistence/project/PropertyValue.h"

#include <type_traits>
#include <utility>

namespace quillford {

namespace {

constexpr qint64 TicksPerMillisecond = 10'000;
/// From the beginning of 1601 to the beginning of 1970.
constexpr qint64 MillisecondsToEpoch = 11'644'473'600'000;

template <typename Type>
constexpr bool IsInteger = std::is_integral_v<Type> && !std::is_same_v<Type, bool>;

} // namespace

QDateTime FileTime::toDateTime() const {
    if (ticks == 0)
        return {};
    const auto milliseconds = static_cast<qint64>(ticks / TicksPerMillisecond);
    return QDateTime::fromMSecsSinceEpoch(milliseconds - MillisecondsToEpoch, Qt::UTC);
}

FileTime FileTime::fromDateTime(const QDateTime& time) {
    if (!time.isValid())
        return {};
    const qint64 sinceEpoch = time.toMSecsSinceEpoch();
    // No date that a file time can hold is so late that the sum or the product could overflow.
    constexpr qint64 Latest =
        static_cast<qint64>(~quint64{0} / TicksPerMillisecond) - MillisecondsToEpoch;
    if (sinceEpoch < -MillisecondsToEpoch || sinceEpoch > Latest)
        return {};
    return {static_cast<quint64>(sinceEpoch + MillisecondsToEpoch) * TicksPerMillisecond};
}

template <>
QString propertyAs<QString>(const PropertyValue& value) {
    const auto* text = std::get_if<QString>(&value);
    return text != nullptr ? *text : QString();
}

template <>
qint32 propertyAs<qint32>(const PropertyValue& value) {
    return std::visit(
        [](const auto& held) -> qint32 {
            if constexpr (IsInteger<std::decay_t<decltype(held)>>)
                return std::in_range<qint32>(held) ? static_cast<qint32>(held) : 0;
            else
                return 0;
        },
        value);
}

template <>
QDateTime propertyAs<QDateTime>(const PropertyValue& value) {
    const auto* time = std::get_if<FileTime>(&value);
    return time != nullptr ? time->toDateTime() : QDateTime();
}

template <>
FileTimeSpan propertyAs<FileTimeSpan>(const PropertyValue& value) {
    const auto* time = std::get_if<FileTime>(&value);
    return time != nullptr ? time->toSpan() : FileTimeSpan();
}

} // namespace quillford
