#include "platform/linux/writer/UnoValues.h"

namespace quillford {

namespace {

QString withWholePairs(QString text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!text[i].isSurrogate())
            continue;
        const bool isPair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (isPair)
            ++i;
        else
            text[i] = QChar(QChar::ReplacementCharacter);
    }
    return text;
}

} // namespace

rtl::OUString toOUString(const QString& text) {
    const QString whole = text.isValidUtf16() ? text : withWholePairs(text);
    return rtl::OUString(reinterpret_cast<const sal_Unicode*>(whole.utf16()),
                         static_cast<sal_Int32>(whole.size()));
}

QString asWriterText(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\r"));
    text.replace(u'\n', u'\r');
    const auto isNoText = [](QChar character) {
        const bool isControl =
            character.unicode() < u' ' && character != u'\t' && character != u'\r';
        const bool isAnchor = character.unicode() >= 0xFFF9 && character.unicode() <= 0xFFFB;
        return isControl || isAnchor;
    };
    return text.removeIf(isNoText);
}

QString toQString(const rtl::OUString& text) {
    return QString(reinterpret_cast<const QChar*>(text.getStr()), text.getLength());
}

} // namespace quillford
