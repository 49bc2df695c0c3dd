#include "core/settings/FileNames.h"

#include "base/Text.h"

#include <QStringView>

#include <algorithm>

namespace quillford {

namespace {

/// A project may travel, so that the name has to suit every desktop.
constexpr QStringView NeverInNames = u"/\\:*?\"<>|";

bool isHalfOfPair(QStringView text, qsizetype at) {
    if (text[at].isHighSurrogate())
        return at + 1 < text.size() && text[at + 1].isLowSurrogate();
    return at > 0 && text[at - 1].isHighSurrogate();
}

bool canStandInName(QStringView text, qsizetype at) {
    if (text[at].isSurrogate())
        return isHalfOfPair(text, at);
    return text[at].category() != QChar::Other_Control && !NeverInNames.contains(text[at]);
}

} // namespace

QString cutToBytes(const QString& text, qsizetype bytes) {
    const QByteArray encoded = text.toUtf8();
    if (encoded.size() <= bytes)
        return text;
    const auto isInsideCharacter = [&](qsizetype at) { return (encoded[at] & 0xC0) == 0x80; };
    qsizetype end = std::max<qsizetype>(bytes, 0);
    while (end > 0 && isInsideCharacter(end))
        --end;
    return QString::fromUtf8(encoded.first(end));
}

QString fileNameWith(const QString& prefix, const QString& fileNo, const QString& ending) {
    const QStringView typed = trimBlanks(fileNo);
    QString number = typed.toString();
    for (qsizetype i = 0; i < typed.size(); ++i)
        if (!canStandInName(typed, i))
            number[i] = u'-';
    const qsizetype room = MostFileNameBytes - prefix.toUtf8().size() - ending.toUtf8().size();
    return prefix + cutToBytes(number, room) + ending;
}

} // namespace quillford
