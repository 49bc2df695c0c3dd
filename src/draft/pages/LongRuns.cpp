#include "draft/pages/LongRuns.h"

#include <QList>
#include <QTextCursor>

namespace quillford {

namespace {

bool endsRun(QChar character) {
    return character == u' ' || character == u'\t' || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator || character == QChar::ObjectReplacementCharacter;
}

/// The positions before which a break belongs, in rising order.
QList<int> breaksIn(const QString& text) {
    QList<int> breaks;
    int run = 0;
    for (int at = 0; at < text.size(); ++at) {
        if (endsRun(text[at]))
            run = 0;
        else if (run >= LongestRun && !text[at].isLowSurrogate()) {
            breaks.append(at);
            run = 1;
        } else
            ++run;
    }
    return breaks;
}

} // namespace

void breakLongRuns(QTextDocument& document) {
    const QList<int> breaks = breaksIn(document.toRawText());
    QTextCursor cursor(&document);
    for (auto at = breaks.crbegin(); at != breaks.crend(); ++at) {
        cursor.setPosition(*at);
        cursor.insertText(QString(QChar(0x200B)));
    }
}

} // namespace quillford
