#include "draft/language/Paragraphs.h"

#include "base/Text.h"
#include "draft/language/Capitals.h"
#include "draft/language/Sentences.h"

#include <QList>

namespace quillford {

namespace {

constexpr QStringView LineEnd = u"\r\n";
constexpr QStringView HtmlBreak = u"<br>";
constexpr QStringView HtmlIndent = u"&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;"
                                   u"&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;";
constexpr QStringView WordIndent = u"\t";

QStringView lineBreak(Route route) {
    return route == Route::Html ? HtmlBreak : LineEnd;
}

QStringView indent(Route route) {
    return route == Route::Html ? HtmlIndent : WordIndent;
}

void addLine(QStringView line, bool isLast, Route route, Lines lines, QString& textSoFar) {
    const QString text = upperFirstLetter(trimBlanks(line));
    if (text.isEmpty()) {
        if (!isLast)
            textSoFar += lineBreak(route);
    } else if (lines == Lines::AsParagraphs) {
        setIndent(text, textSoFar, route, {.hasPeriod = text.endsWith(u'.'), .isLast = isLast});
    } else {
        textSoFar += text;
    }
}

} // namespace

void setIndent(QStringView paragraph, QString& textSoFar, Route route, ParagraphEnd end) {
    if (!textSoFar.isEmpty())
        textSoFar += indent(route);
    textSoFar += paragraph;
    if (!end.hasPeriod)
        textSoFar += u'.';
    if (!end.isLast)
        textSoFar += lineBreak(route);
}

QString formatParagraphs(QStringView field, Route route, Lines lines) {
    const QList<QStringView> fieldLines = field.split(LineEnd);
    QString text;
    text.reserve(field.size());
    for (const QStringView& line : fieldLines)
        addLine(line, &line == &fieldLines.back(), route, lines, text);
    // Breaks and indents are in place by now, so a sentence may begin with one of them; its first
    // letter is then left as the paragraph had it.
    return text.contains(u'.') ? capitalizeSentences(text) : text;
}

} // namespace quillford
