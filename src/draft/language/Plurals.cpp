#include "draft/language/Plurals.h"

#include "base/Error.h"
#include "base/Text.h"

#include <QStringBuilder>

namespace quillford {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView Vowels = u"aeiou";
constexpr qint64 InvalidCall = 5;

/// True when the last letter, known to be a "y", has a character before it that is no vowel.
bool endsInConsonantAndY(QStringView word) {
    return word.size() >= 2 && !Vowels.contains(lowerCase(lastLetters(word, word.size(), 1, 1)));
}

} // namespace

QString pluralize(QStringView word) {
    const QChar last = lowerCase(lastLetters(word, word.size(), 1, 0)).front();
    if (last == u's')
        return word.size() == 1 ? word.toString() : QString();
    if (last == u'x')
        return word % u"es";
    if (last == u'y' && endsInConsonantAndY(word))
        return word.chopped(1) % u"ies";
    return word % u"s";
}

QString lastLetters(QStringView text, qsizetype position, qsizetype /*ignoredCount*/,
                    qsizetype stepBack) {
    const qsizetype first = position - stepBack;
    if (first < 1)
        throw Error(InvalidCall, u"Invalid procedure call or argument"_s, u"lastLetters"_s);
    const QStringView rest = text.mid(first - 1);
    return (stepBack > 0 ? rest.left(1) : rest).toString();
}

} // namespace quillford
