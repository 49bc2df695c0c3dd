#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QStringView>

/// JSON as the program writes it: one object, one key a line, one entry of a list a line, in the
/// order in which they are given.
namespace quillford {

/// The text in quotation marks. Half a surrogate pair is written as an escape, so that every text
/// can be read back as it was; so is every control character, those from U+0080 to U+009F too,
/// which some terminals obey.
[[nodiscard]] QString jsonString(QStringView text);

/// A list of values that are JSON already.
[[nodiscard]] QString jsonList(const QStringList& values);

[[nodiscard]] QString jsonFlag(bool value);

/// A key and its value, which is JSON already.
[[nodiscard]] QString jsonEntry(QStringView key, const QString& value);

/// The object of these entries in UTF-8, with a line end behind it.
[[nodiscard]] QByteArray jsonDocument(const QStringList& entries);

} // namespace quillford
