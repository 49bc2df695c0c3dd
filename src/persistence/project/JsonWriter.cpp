#include "persistence/project/JsonWriter.h"

#include <QString>
#include <QStringList>

#include <algorithm>

namespace quillford {

namespace {

bool needsUnicodeEscape(QStringView text, qsizetype i) {
    const QChar unit = text[i];
    if (unit.isHighSurrogate())
        return i + 1 == text.size() || !text[i + 1].isLowSurrogate();
    if (unit.isLowSurrogate())
        return i == 0 || !text[i - 1].isHighSurrogate();
    return unit < u' ' || unit == u'\x7f';
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

QString fieldValue(const ProjectFields& fields, const FieldRow& row) {
    if (row.kind == FieldKind::Check)
        return QString::number(fields.at(row.id).number());
    if (row.group == FieldGroup::Single)
        return jsonString(fields.at(row.id).text());
    const int count = fields.at(groupLimits(row.group).count).number();
    QStringList values;
    for (int i = 0; i < std::min(count, fields.count(row.id)); ++i)
        values.append(jsonString(fields.at(row.id, i).text()));
    return jsonList(values);
}

} // namespace

QByteArray writeProjectJson(const Project& project) {
    QStringList entries;
    for (const FieldRow& row : fieldTable())
        entries.append(jsonString(row.name) + QStringLiteral(": ") +
                       fieldValue(project.fields, row));
    entries.append(QStringLiteral("\"verifyPassed\": ") +
                   (project.state.verifyPassed ? QStringLiteral("true") : QStringLiteral("false")));
    return QStringLiteral("{\n  %1\n}\n").arg(entries.join(QStringLiteral(",\n  "))).toUtf8();
}

} // namespace quillford
