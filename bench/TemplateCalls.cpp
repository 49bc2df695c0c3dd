#include "TemplateCalls.h"

#include "base/Error.h"
#include "base/Files.h"
#include "draft/template/HTMLTemplate.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>

namespace quillford {

namespace {

using Operation = TemplateCall::Operation;

struct Signature {
    Operation operation;
    qsizetype argumentCount;
};

const QHash<QString, Signature>& signatures() {
    static const QHash<QString, Signature> all{
        {QStringLiteral("Load"), {Operation::Load, 1}},
        {QStringLiteral("SetItem"), {Operation::SetItem, 2}},
        {QStringLiteral("SetBlock"), {Operation::SetBlock, 3}},
        {QStringLiteral("Parse"), {Operation::Parse, 3}},
    };
    return all;
}

TemplateCall callFrom(const QJsonArray& recorded) {
    QStringList texts;
    for (const QJsonValue& text : recorded)
        texts.append(text.toString());
    const auto signature = signatures().constFind(texts.value(0));
    if (signature == signatures().constEnd() || texts.size() != signature->argumentCount + 1)
        throw Error(0, QStringLiteral("is no call on a template"), texts.value(0));
    return {signature->operation, texts.sliced(1)};
}

void make(const TemplateCall& call, HTMLTemplate& page, const QString& templateFile) {
    const QStringList& arguments = call.arguments;
    switch (call.operation) {
    case Operation::Load:
        page.Load(arguments[0], templateFile);
        break;
    case Operation::SetItem:
        page.SetItem(arguments[0], arguments[1]);
        break;
    case Operation::SetBlock:
        page.SetBlock(arguments[0], arguments[1], arguments[2]);
        break;
    case Operation::Parse:
        page.Parse(arguments[0], arguments[1], arguments[2]);
        break;
    }
}

} // namespace

QList<TemplateCall> readTemplateCalls(const QString& path) {
    QList<TemplateCall> calls;
    const QJsonDocument recording = QJsonDocument::fromJson(contentOfFile(path));
    for (const QJsonValue& recorded : recording.array())
        calls.append(callFrom(recorded.toArray()));
    if (calls.isEmpty() || calls.last().operation != Operation::Parse)
        throw Error(0, QStringLiteral("does not end in a finished page"), path);
    return calls;
}

QString renderedByEngine(const QList<TemplateCall>& calls, const QString& templateFile) {
    HTMLTemplate page;
    for (const TemplateCall& call : calls)
        make(call, page, templateFile);
    return page.p(calls.last().arguments[0]);
}

} // namespace quillford
