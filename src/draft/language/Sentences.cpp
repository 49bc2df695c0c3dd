#include "draft/language/Sentences.h"

#include "base/Text.h"
#include "draft/language/Capitals.h"

#include <QStringBuilder>

namespace quillford {

namespace {

constexpr QStringView SentenceEnd = u". ";

} // namespace

QString capitalizeSentences(QStringView text) {
    QString sentences;
    sentences.reserve(text.size());
    for (const QStringView piece : text.tokenize(u'.')) {
        const QStringView sentence = trimBlanks(piece);
        if (sentence.isEmpty())
            continue;
        sentences += upperFirstLetter(sentence);
        sentences += SentenceEnd;
    }
    return sentences;
}

QString withPeriod(QStringView text) {
    const QStringView sentence = trimBlanks(text);
    if (sentence.isEmpty() || sentence.endsWith(u'.'))
        return sentence.toString();
    return sentence % u'.';
}

QString lowerWithPeriod(QStringView text) {
    return withPeriod(lowerCase(text));
}

} // namespace quillford
