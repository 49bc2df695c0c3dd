#include "persistence/project/JsonReader.h"

#include "base/Error.h"
#include "base/Text.h"
#include "core/fields/FieldLists.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace quillford {

namespace {

constexpr qint64 InvalidData = 13; // the program's number for a value of the wrong type

const QString VerifyPassedKey = QStringLiteral("verifyPassed");

[[noreturn]] void refuse(QStringView key, const QString& reason) {
    throw Error(InvalidData, QStringLiteral("\"%1\" %2").arg(key, reason));
}

/// The toolkit's parser drops a byte order mark at the beginning of a text as it does at that of
/// the file; as an escape it stays.
QByteArray withMarksEscaped(QByteArray json) {
    const QByteArray mark = QByteArrayLiteral("\xEF\xBB\xBF");
    if (json.startsWith(mark))
        json.remove(0, mark.size());
    return json.replace(mark, "\\ufeff");
}

QJsonObject parsed(const QByteArray& json) {
    QJsonParseError failure;
    const QJsonDocument document = QJsonDocument::fromJson(withMarksEscaped(json), &failure);
    if (failure.error != QJsonParseError::NoError)
        throw Error(InvalidData,
                    QStringLiteral("it is no JSON: %1 at byte %2")
                        .arg(failure.errorString())
                        .arg(failure.offset),
                    {}, failure.offset);
    if (!document.isObject())
        throw Error(InvalidData, QStringLiteral("it holds no JSON object"));
    return document.object();
}

bool isPassedOver(QStringView key) {
    return key == u"Section Version" || key == u"Pictures";
}

void refuseUnknownNames(const QJsonObject& object) {
    for (auto entry = object.begin(); entry != object.end(); ++entry)
        if (!findFieldRow(entry.key()) && entry.key() != VerifyPassedKey &&
            !isPassedOver(entry.key()))
            refuse(entry.key(), QStringLiteral("is no field of a project"));
}

bool readVerifyPassed(const QJsonObject& object) {
    const QJsonValue value = object.value(VerifyPassedKey);
    if (!value.isUndefined() && !value.isBool())
        refuse(VerifyPassedKey, QStringLiteral("must be true or false"));
    return value.toBool(false);
}

/// True for a path that starts at a root, of this system or of the one the project came from.
bool isAbsolutePath(QStringView path) {
    const QChar drive = path.size() > 1 && path[1] == u':' ? path[0].toUpper() : QChar();
    const QStringView rest = drive >= u'A' && drive <= u'Z' ? path.sliced(2) : path;
    return rest.startsWith(u'/') || rest.startsWith(u'\\');
}

class ProjectFromJson {
public:
    ProjectFromJson(const QJsonObject& object, const QString& folder, ProjectFields& fields)
        : object_(object), folder_(folder), fields_(fields) {}

    /// A count's row stands above the rows that it counts, so that one walk is enough.
    void read() {
        for (const FieldRow& row : fieldTable())
            if (row.group == FieldGroup::Single)
                readSingle(row);
            else
                readRepeated(row);
    }

private:
    void readSingle(const FieldRow& row) {
        const QJsonValue value = object_.value(row.name);
        if (!value.isUndefined())
            fields_.at(row.id).loadText(row.kind == FieldKind::Check ? checkText(row, value)
                                                                     : text(row, value));
        if (row.kind == FieldKind::List)
            takeCount(row);
    }

    void takeCount(const FieldRow& row) {
        const Field& count = fields_.at(row.id);
        if (!listRows(row.list).contains(count.text()))
            refuse(row.name,
                   QStringLiteral("must be one of \"%1\" to \"%2\", not \"%3\"")
                       .arg(listRows(row.list).first(), listRows(row.list).last(), count.text()));
        for (const FieldGroup group : RepeatingGroups)
            if (groupLimits(group).count == row.id)
                fields_.setPanelCount(group, count.number());
    }

    void readRepeated(const FieldRow& row) {
        const QJsonValue value = object_.value(row.name);
        if (value.isUndefined())
            return;
        if (!value.isArray())
            refuse(row.name, QStringLiteral("must be a list of strings"));
        const QJsonArray list = value.toArray();
        const Field& count = fields_.at(groupLimits(row.group).count);
        if (list.size() > count.number())
            refuse(row.name, QStringLiteral("holds %1 texts, but \"%2\" is \"%3\"")
                                 .arg(QString::number(list.size()), count.row().name.toString(),
                                      count.text()));
        for (int i = 0; i < list.size(); ++i)
            fields_.at(row.id, i).loadText(text(row, list.at(i)));
    }

    QString text(const FieldRow& row, const QJsonValue& value) const {
        if (!value.isString())
            refuse(row.name, row.group == FieldGroup::Single
                                 ? QStringLiteral("must be a string")
                                 : QStringLiteral("must be a list of strings"));
        return row.id == FieldId::txtAttachFig ? absolutePath(value.toString()) : value.toString();
    }

    static QString checkText(const FieldRow& row, const QJsonValue& value) {
        if (!value.isDouble() || (value.toDouble() != 0.0 && value.toDouble() != 1.0))
            refuse(row.name, QStringLiteral("must be 0 or 1"));
        return QString::number(value.toInt());
    }

    QString absolutePath(const QString& path) const {
        if (isBlank(path) || isAbsolutePath(trimBlanks(path)))
            return path;
        // The toolkit takes a name like ":/x" as one of its own and would not put the folder first.
        return QDir::cleanPath(folder_ + u'/' + path);
    }

    const QJsonObject& object_;
    const QString& folder_;
    ProjectFields& fields_;
};

} // namespace

void readProjectJson(const QByteArray& json, const QString& folder, Project& project) {
    const QJsonObject object = parsed(json);
    refuseUnknownNames(object);
    project.state.verifyPassed = readVerifyPassed(object);
    ProjectFromJson(object, folder, project.fields).read();
}

} // namespace quillford
