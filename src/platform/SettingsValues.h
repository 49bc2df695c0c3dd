#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace quillford {

/// The two roots under which keys stand.
enum class Hive { CurrentUser, ClassesRoot };

/// All settings as one step of a `SettingsStore` sees them: texts under named values, values under
/// keys, keys under one of two roots. A key is a path of names with `\` between them; the names of
/// keys and values are the same in either case of their letters, and keep the case in which they
/// were first written. A value's name may be empty: that is the key's default value.
///
/// A key comes into being with its first value, together with every key on its way, and stays when
/// its last value is removed. A text is any sequence of UTF-16 code units, the zero character, line
/// ends and the empty text included.
class SettingsValues {
public:
    virtual ~SettingsValues() = default;

    /// The text of a value, whole. Nothing when the value or its key was never written or has been
    /// removed.
    [[nodiscard]] virtual std::optional<QString> value(Hive hive, QStringView key,
                                                       QStringView name) const = 0;

    /// Whether the key, or a key below it, exists.
    [[nodiscard]] virtual bool hasKey(Hive hive, QStringView key) const = 0;

    /// Writes a value, in place of an earlier one of the same name, and makes its key if needed.
    /// Raises `Error` when `key` holds a control character.
    virtual void setValue(Hive hive, QStringView key, QStringView name, const QString& text) = 0;

    /// Removes a value; nothing happens when there is none.
    virtual void removeValue(Hive hive, QStringView key, QStringView name) = 0;
};

} // namespace quillford
