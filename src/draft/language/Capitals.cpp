#include "draft/language/Capitals.h"

#include "base/Text.h"

#include <QStringBuilder>

#include <algorithm>
#include <array>

namespace quillford {

namespace {

constexpr std::array<QStringView, 5> SmallWords{u"in", u"at", u"on", u"of", u"for"};

} // namespace

QString upperFirstLetter(QStringView text) {
    return upperCase(text.left(1)) % text.mid(1);
}

QString properCaseWord(QStringView word) {
    return upperCase(word.left(1)) % lowerCase(word.mid(1));
}

QString properCaseWords(QStringView text) {
    QString cased;
    cased.reserve(text.size() + 1);
    for (const QStringView word : text.tokenize(u' ')) {
        cased += properCaseWord(word);
        cased += u' ';
    }
    cased.chop(1);
    return cased;
}

bool isSmallWord(QStringView word) {
    return std::find(SmallWords.begin(), SmallWords.end(), lowerCase(word)) != SmallWords.end();
}

} // namespace quillford
