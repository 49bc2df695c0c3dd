#include "platform/linux/QuotedText.h"

namespace quillford {

namespace {

constexpr QChar Mark = u'"';
constexpr QChar Escape = u'\\';
constexpr qsizetype DigitsOfCodeUnit = 4;

bool isHalfOfPair(QStringView text, qsizetype i) {
    if (text[i].isHighSurrogate())
        return i + 1 < text.size() && text[i + 1].isLowSurrogate();
    return text[i].isLowSurrogate() && i > 0 && text[i - 1].isHighSurrogate();
}

/// Whether a code unit would break the line for some reader of it, or has no place in UTF-8.
bool needsNumber(QStringView text, qsizetype i) {
    switch (text[i].category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return text[i].isSurrogate() && !isHalfOfPair(text, i);
    }
}

void appendEscaped(QString& line, QStringView text, qsizetype i) {
    switch (text[i].unicode()) {
    case u'"':
    case u'\\':
        line += Escape;
        line += text[i];
        return;
    case u'\n':
        line += QStringLiteral("\\n");
        return;
    case u'\r':
        line += QStringLiteral("\\r");
        return;
    case u'\t':
        line += QStringLiteral("\\t");
        return;
    default:
        if (needsNumber(text, i))
            line +=
                QStringLiteral("\\u%1").arg(text[i].unicode(), DigitsOfCodeUnit, 16, QChar(u'0'));
        else
            line += text[i];
    }
}

QChar takeOne(QStringView& rest) {
    const QChar first = rest.front();
    rest = rest.sliced(1);
    return first;
}

std::optional<QChar> takeNumbered(QStringView& rest) {
    if (rest.size() < DigitsOfCodeUnit)
        return std::nullopt;
    bool understood = false;
    const ushort number = rest.first(DigitsOfCodeUnit).toUShort(&understood, 16);
    rest = rest.sliced(DigitsOfCodeUnit);
    return understood ? std::optional(QChar(number)) : std::nullopt;
}

/// The character that stands behind an escape character.
std::optional<QChar> takeEscaped(QStringView& rest) {
    if (rest.isEmpty())
        return std::nullopt;
    switch (const QChar sign = takeOne(rest); sign.unicode()) {
    case u'"':
    case u'\\':
        return sign;
    case u'n':
        return u'\n';
    case u'r':
        return u'\r';
    case u't':
        return u'\t';
    case u'u':
        return takeNumbered(rest);
    default:
        return std::nullopt;
    }
}

} // namespace

QString quoted(QStringView text) {
    QString line(Mark);
    for (qsizetype i = 0; i < text.size(); ++i)
        appendEscaped(line, text, i);
    line += Mark;
    return line;
}

std::optional<QString> takeQuoted(QStringView& rest) {
    if (!rest.startsWith(Mark))
        return std::nullopt;
    rest = rest.sliced(1);
    QString text;
    while (!rest.isEmpty()) {
        const QChar character = takeOne(rest);
        if (character == Mark)
            return text;
        const auto meant = character == Escape ? takeEscaped(rest) : std::optional(character);
        if (!meant)
            return std::nullopt;
        text += *meant;
    }
    return std::nullopt;
}

} // namespace quillford
