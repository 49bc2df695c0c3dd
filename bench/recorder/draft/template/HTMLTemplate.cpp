#include "draft/template/HTMLTemplate.h"

#include "WriteFile.h"
#include "base/Error.h"

#include <QJsonDocument>

namespace quillford {

bool HTMLTemplate::Load(const QString& name, const QString&) {
    calls_.append(QJsonArray{QStringLiteral("Load"), name});
    return true;
}

void HTMLTemplate::SaveAs(const QString& path, const QString&) const {
    writeFile(path, QJsonDocument(calls_).toJson());
}

void HTMLTemplate::SetItem(const QString& name, const QString& value, bool append) {
    if (append)
        throw Error(0, QStringLiteral("an appended value cannot be recorded"), name);
    calls_.append(QJsonArray{QStringLiteral("SetItem"), name, value});
}

void HTMLTemplate::SetBlock(const QString& parent, const QString& block,
                            const QString& placeholder) {
    calls_.append(QJsonArray{QStringLiteral("SetBlock"), parent, block, placeholder});
}

void HTMLTemplate::Parse(const QString& target, const QString& block, const QString& separator) {
    calls_.append(QJsonArray{QStringLiteral("Parse"), target, block, separator});
}

QString HTMLTemplate::p(const QString&) const {
    return {};
}

} // namespace quillford
