#pragma once

#include "platform/SettingsStore.h"

#include <QString>
#include <QStringView>

namespace quillford {

/// The settings as the program reads and writes them: nothing here ever fails. What cannot be read
/// is empty, and what cannot be written is not.
class Settings {
public:
    /// The most of a value that is ever read, in bytes of UTF-8.
    static constexpr qsizetype MostBytesRead = 10240;

    /// The store must live longer than this object.
    explicit Settings(SettingsStore& store) : store_(store) {}

    /// The text of a value up to its first zero character, cut to the characters that lie wholly
    /// within `MostBytesRead`. Empty when the key or the value is missing.
    [[nodiscard]] QString regRead(Hive hive, QStringView key, QStringView valueName) const;

    /// The same within a step of `change`.
    [[nodiscard]] static QString regRead(const SettingsValues& values, Hive hive, QStringView key,
                                         QStringView valueName);

    /// Writes a value, making its key if needed. The text is stored whole, however long.
    void regWrite(Hive hive, QStringView key, QStringView valueName, const QString& text);

    /// Removes one value; its key stays.
    void regDelete(Hive hive, QStringView key, QStringView valueName);

    /// Whether a key of that name exists under `Hive::ClassesRoot`.
    [[nodiscard]] bool regKeyExists(QStringView name) const;

    /// Reads several values as they stand at one moment: see `SettingsStore::look`. The step is not
    /// called when the store cannot be read; it raises nothing.
    void look(const SettingsStore::Look& step) const;

    /// Reads, shifts and writes several values as one step, between which no other program comes:
    /// see `SettingsStore::change`. The step is not called when the store cannot be read, and what
    /// it wrote is dropped without a word when the store cannot be written; it raises nothing.
    void change(const SettingsStore::Change& step);

    /// A value of the program's own key that is a truth: "True" when it is set; a missing value and
    /// any other text are false.
    [[nodiscard]] bool flag(QStringView valueName) const;

    /// Writes such a value as "True" or "False".
    void setFlag(QStringView valueName, bool set);

private:
    SettingsStore& store_;
};

} // namespace quillford
