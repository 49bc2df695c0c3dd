#pragma once

#include <QList>
#include <QString>
#include <QStringView>

/// What a word is for the spelling. Nothing here fails, whatever the text is made of.
namespace quillford {

/// A part of a text, in UTF-16 code units.
struct TextRange {
    qsizetype start = 0;
    qsizetype length = 0;

    [[nodiscard]] qsizetype end() const { return start + length; }

    friend bool operator==(const TextRange&, const TextRange&) = default;
};

/// The words of a text, in its order: letters with the marks that belong to them, and apostrophes
/// between letters. What is joined by a hyphen is several words. Whatever has a digit in it is none
/// ("10a", "H2O"), and neither are the parts of an address ("www.example.com", "ann@example.com").
[[nodiscard]] QList<TextRange> wordsIn(QStringView text);

/// False for a word on which a dictionary of English has nothing to say: a single letter, an
/// acronym ("USB", "LEDs", "PVC's"), another script than Latin, more than 100 characters.
[[nodiscard]] bool isSpellable(QStringView word);

/// The word as dictionaries have it: composed letters, the straight apostrophe, and nothing that is
/// not seen.
[[nodiscard]] QString spelled(QStringView word);

} // namespace quillford
