#pragma once

#include <QString>
#include <QStringList>

namespace quillford {

/// Checks the spelling of single words. One dictionary serves the whole program.
///
/// Nothing here fails: an engine without a dictionary finds no mistake and has nothing to suggest.
/// A word has letters and apostrophes alone, in the composed form of Unicode and with the straight
/// apostrophe.
class SpellEngine {
public:
    virtual ~SpellEngine() = default;

    /// True once a dictionary has been loaded.
    [[nodiscard]] virtual bool hasDictionary() const = 0;

    /// Loads the dictionary in the file `path`, or does nothing when that was the last one named. A
    /// file that is missing or cannot be used is passed over, and the engine then finds no mistake.
    virtual void loadDictionary(const QString& path) = 0;

    /// True when the word stands in the dictionary or in the user's own list, or is ignored; always
    /// true without a dictionary. A capital is right at the beginning of a word, and a word in
    /// capitals is right when the same word in small letters is.
    [[nodiscard]] virtual bool isKnown(const QString& word) const = 0;

    /// Known words that may be meant, the likeliest first. Takes up to a quarter of a second.
    [[nodiscard]] virtual QStringList suggestions(const QString& word) const = 0;

    /// Makes the word known from now on, to later runs and other programs of the user too. Where
    /// the user's list cannot be written, the word is known to this run only.
    virtual void addToUserDictionary(const QString& word) = 0;

    /// Makes the word known until the program ends.
    virtual void ignore(const QString& word) = 0;
};

} // namespace quillford
