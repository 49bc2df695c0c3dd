#pragma once

#include <QString>
#include <QStringView>

/// The program's own rules for text. A blank is the character 32 and no other: tabs and line ends
/// belong to what the user typed. All text is UTF-16.
namespace quillford {

/// The text without its leading and trailing blanks, as a view into the same characters.
[[nodiscard]] QStringView trimBlanks(QStringView text) noexcept;

/// True when the text is empty or holds nothing but blanks.
[[nodiscard]] bool isBlank(QStringView text) noexcept;

/// Upper and lower case, code unit by code unit, so that the length never changes and positions in
/// the result are positions in the text. Letters whose other case is longer (the German sharp s)
/// and letters outside the Basic Multilingual Plane stay as they are.
[[nodiscard]] QString upperCase(QStringView text);
[[nodiscard]] QString lowerCase(QStringView text);

/// The number with which a text begins: leading blanks are passed over, then the decimal digits
/// are read, with a sign before them if there is one. A text that begins otherwise gives 0, and a
/// number that an `int` cannot hold gives the nearest one it can.
[[nodiscard]] int numberIn(QStringView text) noexcept;

} // namespace quillford
