#include "persistence/project/JsonWriter.h"

#include "persistence/project/JsonText.h"

#include <QStringList>

#include <algorithm>

namespace quillford {

namespace {

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

QStringList projectEntries(const Project& project) {
    QStringList entries;
    for (const FieldRow& row : fieldTable())
        entries.append(jsonEntry(row.name, fieldValue(project.fields, row)));
    entries.append(jsonEntry(u"verifyPassed", jsonFlag(project.state.verifyPassed)));
    return entries;
}

QString pictureObject(const PictureList::Picture& picture) {
    return QStringLiteral("{\"index\": ") + QString::number(picture.figure) +
           QStringLiteral(", \"path\": ") + jsonString(picture.path) +
           QStringLiteral(", \"size\": ") + QString::number(picture.size) +
           QStringLiteral(", \"sha256\": ") +
           jsonString(QString::fromLatin1(picture.sha256.toHex())) + u'}';
}

} // namespace

QByteArray writeProjectJson(const Project& project) {
    return jsonDocument(projectEntries(project));
}

QByteArray writeProjectJson(const Project& project, const QString& version,
                            const PictureList& pictures) {
    QStringList objects;
    for (const PictureList::Picture& picture : pictures.pictures())
        objects.append(pictureObject(picture));
    QStringList entries = projectEntries(project);
    entries.append(jsonEntry(u"Section Version", jsonString(version)));
    entries.append(jsonEntry(u"Pictures", jsonList(objects)));
    return jsonDocument(entries);
}

} // namespace quillford
