#include "controls/Spelling.h"

#include "base/Text.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace quillford {

namespace {

/// How far a word or an address may reach out of the part that is asked for.
constexpr qsizetype Around = 200;

/// As two words are compared: in small letters and without 's.
QString compared(QStringView word) {
    QString small = lowerCase(spelled(word));
    if (small.endsWith(QStringLiteral("'s")))
        small.chop(2);
    return small;
}

QSet<QString> wordsOf(const QStringList& names) {
    QSet<QString> words;
    for (const QString& name : names)
        for (const TextRange& word : wordsIn(name))
            words.insert(compared(QStringView(name).sliced(word.start, word.length)));
    return words;
}

} // namespace

Spelling::Spelling(SpellEngine& engine, Names names) : engine_(engine), names_(std::move(names)) {}

QList<TextRange> Spelling::unknownWords(QStringView text, qsizetype from, qsizetype to) const {
    QList<TextRange> unknown;
    if (!engine_.hasDictionary())
        return unknown;
    const qsizetype start = std::max<qsizetype>(from - Around, 0);
    const qsizetype end = std::min(to + Around, text.size());
    for (TextRange word : wordsIn(text.sliced(start, end - start))) {
        word.start += start;
        const QStringView letters = text.sliced(word.start, word.length);
        if (word.end() >= from && word.start <= to && isSpellable(letters) &&
            !engine_.isKnown(spelled(letters)))
            unknown.append(word);
    }
    // Most texts have few unknown words, and the names are read for them alone.
    if (!unknown.isEmpty() && names_) {
        const QSet<QString> names = wordsOf(names_());
        unknown.removeIf([&](const TextRange& word) {
            return names.contains(compared(text.sliced(word.start, word.length)));
        });
    }
    return unknown;
}

QStringList Spelling::suggestions(QStringView word) const {
    return engine_.suggestions(spelled(word));
}

void Spelling::addToDictionary(QStringView word) {
    engine_.addToUserDictionary(spelled(word));
}

void Spelling::ignore(QStringView word) {
    engine_.ignore(spelled(word));
}

} // namespace quillford
