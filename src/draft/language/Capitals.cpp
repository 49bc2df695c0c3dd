#include "draft/language/Capitals.h"

#include "base/Text.h"

#include <QStringBuilder>

#include <algorithm>
#include <array>

namespace quillford {

namespace {

constexpr std::array<QStringView, 5> SmallWords{u"in", u"at", u"on", u"of", u"for"};

/// The text with each of its words put through `change`.
template <typename Change>
QString eachWord(QStringView text, Change change) {
    QString changed;
    changed.reserve(text.size() + 1);
    for (const QStringView word : text.tokenize(u' ')) {
        changed += change(word);
        changed += u' ';
    }
    changed.chop(1);
    return changed;
}

} // namespace

QString upperFirstLetter(QStringView text) {
    return upperCase(text.left(1)) % text.mid(1);
}

QString properCaseWord(QStringView word) {
    return upperCase(word.left(1)) % lowerCase(word.mid(1));
}

QString properCaseWords(QStringView text) {
    return eachWord(text, properCaseWord);
}

bool isSmallWord(QStringView word) {
    return std::find(SmallWords.begin(), SmallWords.end(), lowerCase(word)) != SmallWords.end();
}

QString properCaseIndexEntry(QStringView text) {
    return eachWord(text, [](QStringView word) {
        return isSmallWord(word) ? word.toString() : properCaseWord(word);
    });
}

} // namespace quillford
