#include "core/text/LineBreaks.h"

#include "base/Text.h"

#include <algorithm>
#include <utility>

namespace quillford {

namespace {

/// The length of the shortest beginning of the text that passes the test, one more than the text
/// has if none does. What is longer than a beginning that passes must pass, too.
template <typename Test>
qsizetype shortestBeginning(QStringView text, Test passes) {
    constexpr qsizetype FirstLook = 32;
    qsizetype before = 0;
    qsizetype length = std::min(FirstLook, text.size());
    while (!passes(text.first(length))) {
        if (length == text.size())
            return length + 1;
        before = std::exchange(length, std::min(length * 2, text.size()));
    }
    while (length - before > 1) {
        const qsizetype middle = before + (length - before) / 2;
        (passes(text.first(middle)) ? length : before) = middle;
    }
    return length;
}

bool reaches(QStringView text, double width, TextWeight weight, const TextMeasure& measure) {
    const auto passes = [&](QStringView part) { return measure.width(part, weight) >= width; };
    return shortestBeginning(text, passes) <= text.size();
}

/// The number of characters before the first one that makes the text wider than `width`.
qsizetype lengthThatFits(QStringView text, double width, TextWeight weight,
                         const TextMeasure& measure) {
    const auto passes = [&](QStringView part) { return measure.width(part, weight) > width; };
    return shortestBeginning(text, passes) - 1;
}

QStringView withoutBlanksAtEnd(QStringView text) {
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

/// The same position, or the one before it when that one would part a character.
qsizetype betweenCharacters(QStringView text, qsizetype position) {
    const bool parts = position > 0 && position < text.size() &&
                       text[position - 1].isHighSurrogate() && text[position].isLowSurrogate();
    return parts ? position - 1 : position;
}

/// The length of the first character.
qsizetype firstCharacter(QStringView text) {
    return betweenCharacters(text, 1) == 1 ? 1 : 2;
}

} // namespace

qsizetype findBreakPosition(QStringView text, double width, BreakMode mode,
                            const TextMeasure& measure, TextWeight weight) {
    const qsizetype fitting = lengthThatFits(text, width, weight, measure);
    if (fitting == text.size())
        return fitting;
    const qsizetype lastBlank = mode == BreakMode::BreakWord ? text.lastIndexOf(u' ') : -1;
    return lastBlank < 0 ? betweenCharacters(text, fitting) : lastBlank + 1;
}

QString fitCaptionToWidth(const QString& text, double width, bool closeBracket,
                          const TextMeasure& measure) {
    // A line so far is the text up to the end of a word.
    for (qsizetype begin = 0; begin < text.size();) {
        const qsizetype blank = text.indexOf(u' ', begin);
        const qsizetype end = blank < 0 ? text.size() : blank;
        const QStringView line = QStringView(text).first(end);
        if (reaches(line, width, TextWeight::Regular, measure)) {
            const qsizetype cut = findBreakPosition(line, width, BreakMode::BreakAll, measure);
            return trimBlanks(line.first(cut)).toString() + QStringLiteral("...") +
                   (closeBracket ? QStringLiteral(")") : QString());
        }
        begin = end + 1;
    }
    return text;
}

QStringList wrapIntoLines(QStringView text, double width, TextWeight weight,
                          const TextMeasure& measure) {
    QStringList lines;
    // The line held so far is the text from `begin` to the end of the last word taken.
    qsizetype begin = 0;
    for (qsizetype end = 0; end < text.size();) {
        const qsizetype blank = text.indexOf(u' ', end);
        const qsizetype wordEnd = blank < 0 ? text.size() : blank;
        QStringView line = text.sliced(begin, wordEnd - begin);
        while (!line.isEmpty() && reaches(line, width, weight, measure)) {
            // What is left of one word holds no blank; a long one is not searched for it again.
            const bool oneWord = line.size() <= wordEnd - end;
            const auto mode = oneWord ? BreakMode::BreakAll : BreakMode::BreakWord;
            const qsizetype position = findBreakPosition(line, width, mode, measure, weight);
            const qsizetype taken = std::max(position, firstCharacter(line));
            lines.append(trimBlanks(line.first(taken)).toString());
            line = line.sliced(taken);
        }
        begin = wordEnd - line.size();
        end = wordEnd + 1;
    }
    if (const QStringView rest = text.sliced(std::min(begin, text.size())); !isBlank(rest))
        lines.append(withoutBlanksAtEnd(rest).toString());
    return lines;
}

} // namespace quillford
