#pragma once

#include "controls/SpellWords.h"
#include "platform/SpellEngine.h"

#include <QStringList>

#include <functional>

namespace quillford {

/// The spelling of texts: which of their words neither the dictionary nor the open project knows.
class Spelling {
public:
    /// The names in the open project, as they stand now. Their words are known in any case, with
    /// 's or without.
    using Names = std::function<QStringList()>;

    /// `engine` outlives it.
    Spelling(SpellEngine& engine, Names names);

    /// The unknown words that touch the part of the text from `from` to `to`, in its order. No more
    /// than a few hundred characters around that part are looked at.
    [[nodiscard]] QList<TextRange> unknownWords(QStringView text, qsizetype from,
                                                qsizetype to) const;

    [[nodiscard]] QList<TextRange> unknownWords(QStringView text) const {
        return unknownWords(text, 0, text.size());
    }

    /// Known words that may be meant, the likeliest first.
    [[nodiscard]] QStringList suggestions(QStringView word) const;

    /// Makes the word known for good, in the user's own list.
    void addToDictionary(QStringView word);

    /// Makes the word known until the program ends.
    void ignore(QStringView word);

private:
    SpellEngine& engine_;
    Names names_;
};

} // namespace quillford
