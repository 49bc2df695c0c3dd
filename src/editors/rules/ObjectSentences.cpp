#include "editors/rules/ObjectSentences.h"

#include "base/Text.h"
#include "draft/language/Articles.h"

namespace quillford {

namespace {

/// "a mirror", in lower case whatever was typed; a placeholder while there is no title.
QString whatIsProvided(const QString& inventionTitle) {
    const QStringView title = trimBlanks(inventionTitle);
    if (title.isEmpty())
        return QStringLiteral("a [Descriptive Title]");
    return isVowelInitial(title) + u' ' + lowerCase(title);
}

} // namespace

ObjectCaptions objectCaptions(int index, const QString& inventionTitle, SentenceWriter writer) {
    const QString object = index == 0 ? QStringLiteral("An") : QStringLiteral("Another");
    const bool blanksInCaption = index > 0 && writer == SentenceWriter::Refresh;
    const QString blanks = QStringLiteral("  ");
    const QString sentence = QString::number(index + 1) + QStringLiteral(". \"") + object +
                             QStringLiteral(" object of my invention is to provide ") +
                             whatIsProvided(inventionTitle) +
                             QStringLiteral(" that _____________.\" (COMPLETE SENTENCE)");
    return {blanksInCaption ? sentence + blanks : sentence, sentence + blanks + u'*'};
}

ObjectPanelPlaces objectPanelPlaces(int sentenceTop, int sentenceHeight) {
    constexpr int DesignedPanel = 81;
    constexpr int DesignedSentence = 26;
    constexpr int Gap = 6;
    return {sentenceTop + sentenceHeight + Gap, sentenceHeight + DesignedPanel - DesignedSentence};
}

} // namespace quillford
