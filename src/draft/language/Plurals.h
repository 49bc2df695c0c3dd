#pragma once

#include <QString>
#include <QStringView>

/// The plural of the general field of the invention, by its last letters and no dictionary. Drafts
/// depend on every one of these results, so the rough ones ("brushs", nothing for "glass") stay.
namespace quillford {

/// The plural of a text of one or more words; the words before the last letters play no part.
///
/// - After "s" it is empty, and the sentence of the draft then reads with nothing at that place.
///   The single letter "s" is its own plural.
/// - After "x" it is the text and "es".
/// - After a "y" that has a character other than a, e, i, o or u before it, "ies" stands for the
///   "y".
/// - In every other case it is the text and "s".
///
/// The letters are compared without regard to case, the text itself keeps its own.
/// @throws Error  number 5, when the text is empty
[[nodiscard]] QString pluralize(QStringView word);

/// The letters from which `pluralize` judges.
///
/// @param position      where to read, counted from 1; beyond the end there is nothing to read
/// @param ignoredCount  plays no part
/// @param stepBack      0: everything from `position` to the end; above 0: the one character that
///                      many places before `position`
/// @throws Error        number 5, when the place to read lies before the first character
[[nodiscard]] QString lastLetters(QStringView text, qsizetype position, qsizetype ignoredCount,
                                  qsizetype stepBack);

} // namespace quillford
