#include "persistence/project/JsonText.h"

namespace quillford {

namespace {

bool needsUnicodeEscape(QStringView text, qsizetype i) {
    const QChar unit = text[i];
    if (unit.isHighSurrogate())
        return i + 1 == text.size() || !text[i + 1].isLowSurrogate();
    if (unit.isLowSurrogate())
        return i == 0 || !text[i - 1].isHighSurrogate();
    return unit.category() == QChar::Other_Control;
}

void appendUnit(QString& json, QStringView text, qsizetype i) {
    switch (text[i].unicode()) {
    case u'"':
        json += u"\\\"";
        return;
    case u'\\':
        json += u"\\\\";
        return;
    case u'\r':
        json += u"\\r";
        return;
    case u'\n':
        json += u"\\n";
        return;
    case u'\t':
        json += u"\\t";
        return;
    default:
        if (needsUnicodeEscape(text, i))
            json += QStringLiteral("\\u%1").arg(text[i].unicode(), 4, 16, QLatin1Char('0'));
        else
            json += text[i];
    }
}

} // namespace

QString jsonString(QStringView text) {
    QString json;
    json.reserve(text.size() + 2);
    json += u'"';
    for (qsizetype i = 0; i < text.size(); ++i)
        appendUnit(json, text, i);
    json += u'"';
    return json;
}

QString jsonList(const QStringList& values) {
    if (values.isEmpty())
        return QStringLiteral("[]");
    return QStringLiteral("[\n    %1\n  ]").arg(values.join(QStringLiteral(",\n    ")));
}

QString jsonFlag(bool value) {
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString jsonEntry(QStringView key, const QString& value) {
    return jsonString(key) + QStringLiteral(": ") + value;
}

QByteArray jsonDocument(const QStringList& entries) {
    return QStringLiteral("{\n  %1\n}\n").arg(entries.join(QStringLiteral(",\n  "))).toUtf8();
}

} // namespace quillford
