#include "controls/SpellWords.h"

#include <algorithm>

namespace quillford {

namespace {

constexpr qsizetype LongestWord = 100;
constexpr QChar TypographicApostrophe(0x2019);

/// What a character is to a word.
enum class Part { None, Letter, Mark, Digit, Apostrophe };

struct Character {
    char32_t code;
    qsizetype size;
};

Character characterAt(QStringView text, qsizetype i) {
    const QChar first = text.at(i);
    if (first.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
        return {QChar::surrogateToUcs4(first, text.at(i + 1)), 2};
    return {first.unicode(), 1};
}

bool isUnseen(char32_t code) {
    return code == QChar::SoftHyphen || code == 0x200C || code == 0x200D;
}

Part partOf(char32_t code) {
    if (code == u'\'' || code == TypographicApostrophe.unicode())
        return Part::Apostrophe;
    if (QChar::isLetter(code))
        return Part::Letter;
    if (QChar::isNumber(code) || code == u'_')
        return Part::Digit;
    return QChar::isMark(code) || isUnseen(code) ? Part::Mark : Part::None;
}

bool isLetterAt(QStringView text, qsizetype i) {
    return i < text.size() && partOf(characterAt(text, i).code) == Part::Letter;
}

bool isAddress(QStringView chunk) {
    return chunk.contains(u'@') || chunk.contains(QStringView(u"://")) ||
           chunk.startsWith(QStringView(u"www."), Qt::CaseInsensitive);
}

/// The end of what begins at `start` and holds together; `hasDigit` tells that it is no word.
qsizetype endOfWord(QStringView chunk, qsizetype start, bool& hasDigit) {
    qsizetype i = start;
    while (i < chunk.size()) {
        const auto [code, size] = characterAt(chunk, i);
        const Part part = partOf(code);
        if (part == Part::None || (part == Part::Apostrophe && !isLetterAt(chunk, i + size)))
            break;
        hasDigit = hasDigit || part == Part::Digit;
        i += size;
    }
    return i;
}

void addWords(QStringView chunk, qsizetype offset, QList<TextRange>& words) {
    for (qsizetype i = 0; i < chunk.size();) {
        const auto [code, size] = characterAt(chunk, i);
        const Part part = partOf(code);
        if (part != Part::Letter && part != Part::Digit) {
            i += size;
            continue;
        }
        bool hasDigit = false;
        const qsizetype end = endOfWord(chunk, i, hasDigit);
        if (!hasDigit)
            words.append({offset + i, end - i});
        i = end;
    }
}

/// "LED", and "LEDs" and "LED's" as well.
bool isAcronym(QStringView word) {
    const bool isPlural =
        word.size() > 2 && word.endsWith(u's') && !word.at(word.size() - 2).isLower();
    const QStringView stem = isPlural ? word.chopped(1) : word;
    return std::none_of(stem.begin(), stem.end(), [](QChar c) { return c.isLower(); });
}

} // namespace

QList<TextRange> wordsIn(QStringView text) {
    QList<TextRange> words;
    const auto isSpace = [](QChar c) { return c.isSpace(); };
    for (auto begin = text.begin(); begin != text.end();) {
        begin = std::find_if_not(begin, text.end(), isSpace);
        const auto end = std::find_if(begin, text.end(), isSpace);
        const QStringView chunk(begin, end);
        if (!isAddress(chunk))
            addWords(chunk, begin - text.begin(), words);
        begin = end;
    }
    return words;
}

bool isSpellable(QStringView word) {
    if (word.size() > LongestWord || isAcronym(word))
        return false;
    int letters = 0;
    for (qsizetype i = 0; i < word.size();) {
        const auto [code, size] = characterAt(word, i);
        if (QChar::isLetter(code) && QChar::script(code) != QChar::Script_Latin)
            return false;
        letters += QChar::isLetter(code) ? 1 : 0;
        i += size;
    }
    return letters > 1;
}

QString spelled(QStringView word) {
    QString plain = word.toString();
    const auto isAscii = [](QChar c) { return c.unicode() < 0x80; };
    if (std::all_of(word.begin(), word.end(), isAscii))
        return plain;
    plain.replace(TypographicApostrophe, u'\'');
    plain.removeIf([](QChar c) { return isUnseen(c.unicode()); });
    return plain.normalized(QString::NormalizationForm_C);
}

} // namespace quillford
