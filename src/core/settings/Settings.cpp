#include "core/settings/Settings.h"

#include "base/Error.h"
#include "core/settings/SettingsNames.h"

namespace quillford {

namespace {

/// The bytes that UTF-8 needs for a character; half a pair counts for half of the pair's four.
qsizetype bytesOf(QChar character) {
    if (character.isSurrogate())
        return 2;
    return character.unicode() < 0x80 ? 1 : character.unicode() < 0x800 ? 2 : 3;
}

QString asRead(const QString& text) {
    qsizetype length = 0;
    for (qsizetype bytes = 0; length < text.size() && !text[length].isNull(); ++length) {
        bytes += bytesOf(text[length]);
        if (bytes > Settings::MostBytesRead)
            break;
    }
    // Half of a character that was cut through is no text.
    if (length > 0 && length < text.size() && text[length].isLowSurrogate() &&
        text[length - 1].isHighSurrogate())
        --length;
    return text.first(length);
}

/// Lets a step that cannot be done end without a word: the user can do nothing about it, and the
/// program works on with what it has.
template <typename Step>
void silently(const Step& step) {
    try {
        step();
    } catch (const Error&) {
        return;
    }
}

} // namespace

QString Settings::regRead(const SettingsValues& values, Hive hive, QStringView key,
                          QStringView valueName) {
    return asRead(values.value(hive, key, valueName).value_or(QString()));
}

QString Settings::regRead(Hive hive, QStringView key, QStringView valueName) const {
    QString text;
    look([&](const SettingsValues& values) { text = regRead(values, hive, key, valueName); });
    return text;
}

void Settings::regWrite(Hive hive, QStringView key, QStringView valueName, const QString& text) {
    change([&](SettingsValues& values) { values.setValue(hive, key, valueName, text); });
}

void Settings::regDelete(Hive hive, QStringView key, QStringView valueName) {
    change([&](SettingsValues& values) { values.removeValue(hive, key, valueName); });
}

bool Settings::regKeyExists(QStringView name) const {
    bool exists = false;
    look([&](const SettingsValues& values) { exists = values.hasKey(Hive::ClassesRoot, name); });
    return exists;
}

void Settings::look(const SettingsStore::Look& step) const {
    silently([&] { store_.look(step); });
}

void Settings::change(const SettingsStore::Change& step) {
    silently([&] { store_.change(step); });
}

bool Settings::flag(QStringView valueName) const {
    return regRead(Hive::CurrentUser, settingsNames::SettingsKey, valueName) == u"True";
}

void Settings::setFlag(QStringView valueName, bool set) {
    regWrite(Hive::CurrentUser, settingsNames::SettingsKey, valueName,
             set ? QStringLiteral("True") : QStringLiteral("False"));
}

} // namespace quillford
