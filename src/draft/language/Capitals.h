#pragma once

#include <QString>
#include <QStringView>

/// Capital letters in words and titles. Case changes code unit by code unit, so a result is exactly
/// as long as its text. Words are divided by blanks alone. Nothing here can fail.
namespace quillford {

/// The text with its first character in upper case and the rest as typed.
[[nodiscard]] QString upperFirstLetter(QStringView text);

/// The word with its first character in upper case and all the others in lower case.
[[nodiscard]] QString properCaseWord(QStringView word);

/// The text with each of its words put through `properCaseWord`. Runs of blanks are kept.
[[nodiscard]] QString properCaseWords(QStringView text);

/// True for "in", "at", "on", "of" and "for" in any case: the words that keep, in the Index of
/// Elements, the case in which they were typed. A blank beside the word makes it another word.
[[nodiscard]] bool isSmallWord(QStringView word);

/// The text as the Index of Elements shows it: each of its words put through `properCaseWord`, the
/// small ones as typed. Runs of blanks are kept.
[[nodiscard]] QString properCaseIndexEntry(QStringView text);

} // namespace quillford
