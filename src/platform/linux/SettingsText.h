#pragma once

#include "platform/SettingsValues.h"

#include <QByteArray>
#include <QList>

namespace quillford {

/// Settings as the lines of a text in UTF-8:
///
///     # Whatever is neither a key nor a value is kept.
///     [HKEY_CURRENT_USER\Some Publisher\Some Program]
///     "name"="text"
///     ""="the key's default value"
///
/// Between quotation marks a `\` stands before a quotation mark and before itself; \n, \r and \t
/// are a line feed, a carriage return and a tab, and \u with four hexadecimal digits is any other
/// code unit that a line of text cannot carry. The backslashes of a key stand as they are.
///
/// Lines that are not understood (a comment, another program's syntax, a torn or damaged line) are
/// no values and stay where they are, byte by byte. A line that begins with `[` ends the key before
/// it even when it is damaged itself, so that no value is ever read under a wrong key. Where a hand
/// wrote one name twice under a key, the later line counts.
class SettingsText final : public SettingsValues {
public:
    explicit SettingsText(const QByteArray& bytes);

    /// The text to be stored: what came in, with the changes made since. Its last line has an end.
    [[nodiscard]] QByteArray bytes() const;

    [[nodiscard]] std::optional<QString> value(Hive hive, QStringView key,
                                               QStringView name) const override;
    [[nodiscard]] bool hasKey(Hive hive, QStringView key) const override;
    void setValue(Hive hive, QStringView key, QStringView name, const QString& text) override;
    void removeValue(Hive hive, QStringView key, QStringView name) override;

private:
    /// One line as it is stored, without its line feed, and what it means.
    struct Line {
        enum class Kind { Heading, Value, Foreign };

        QByteArray bytes;
        Kind kind = Kind::Foreign;
        /// Root and key under which the line stands, in upper case; for a heading, those that it
        /// names.
        QString heading;
        QString name;
        QString text;
    };

    [[nodiscard]] static Line understood(const QByteArray& bytes, const QString& headingBefore);
    [[nodiscard]] qsizetype lineOf(const QString& heading, QStringView name) const;
    [[nodiscard]] qsizetype placeForNewValue(Hive hive, QStringView key);

    QList<Line> lines_;
};

} // namespace quillford
