#pragma once

#include "platform/SettingsValues.h"

#include <QString>

/// A list of five entries that several programs push at once. The n-th push of all of them puts
/// entry n first, so a lost, doubled or torn change shows in every later state.
namespace quillford::hammer {

inline constexpr QStringView Key = u"Software\\Some Publisher\\Some Program";
inline constexpr int Places = 5;

[[nodiscard]] inline QString entryOf(int number) {
    return QStringLiteral("/home/ann/Größe %1.ivd|QF=%1|\"Easel\"\r\nof [wood]\n%1|")
        .arg(number)
        .repeated(5);
}

[[nodiscard]] inline int numberOf(const SettingsValues& values, const QString& name) {
    return values.value(Hive::CurrentUser, Key, name).value_or(QString()).toInt();
}

[[nodiscard]] inline int pushes(const SettingsValues& values) {
    return numberOf(values, QStringLiteral("count"));
}

inline void countOne(SettingsValues& values, const QString& name) {
    values.setValue(Hive::CurrentUser, Key, name, QString::number(numberOf(values, name) + 1));
}

/// Shifts all entries one place down and puts a new one first.
inline void push(SettingsValues& values) {
    const auto name = [](int place) { return QStringLiteral("file%1").arg(place); };
    for (int place = Places; place > 1; --place)
        if (const auto entry = values.value(Hive::CurrentUser, Key, name(place - 1)))
            values.setValue(Hive::CurrentUser, Key, name(place), *entry);
    countOne(values, QStringLiteral("count"));
    values.setValue(Hive::CurrentUser, Key, name(1), entryOf(pushes(values)));
}

/// Whether the entries are the last ones pushed, in their order.
[[nodiscard]] inline bool isWhole(const SettingsValues& values) {
    for (int place = 1; place <= Places; ++place) {
        const int number = pushes(values) - place + 1;
        const auto expected = number > 0 ? std::optional(entryOf(number)) : std::nullopt;
        if (values.value(Hive::CurrentUser, Key, QStringLiteral("file%1").arg(place)) != expected)
            return false;
    }
    return true;
}

} // namespace quillford::hammer
