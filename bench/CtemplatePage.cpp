#include "CtemplatePage.h"

#include "WriteFile.h"
#include "base/Error.h"
#include "base/Files.h"

#include <algorithm>
#include <ctemplate/template.h>

namespace quillford {

namespace {

using Operation = TemplateCall::Operation;

QString variableMark(const QString& variable) {
    return QStringLiteral("{{") + variable + QStringLiteral("}}");
}

/// The separator of the last repetition: the engine puts it between any two of them.
QString separatorOf(const QString& block, const QList<TemplateCall>& calls) {
    QString separator;
    for (const TemplateCall& call : calls)
        if (call.operation == Operation::Parse && call.arguments[1] == block)
            separator = call.arguments[2];
    return separator;
}

} // namespace

CtemplatePage::CtemplatePage(const QList<TemplateCall>& calls, const QString& templateFile,
                             const QString& translatedFile)
    : file_(translatedFile.toStdString()), text_(QString::fromUtf8(contentOfFile(templateFile))) {
    text_.replace(u'\n', QStringLiteral("\r\n"));
    translateItems(calls);
    translateBlocks(calls);
    fill(calls);
    writeFile(translatedFile, text_.toUtf8());
}

std::string CtemplatePage::rendered() const {
    ctemplate::TemplateDictionary dictionary("page");
    for (const auto& [variable, value] : values_)
        dictionary.SetValueWithoutCopy(variable, value);
    for (const Section& section : sections_) {
        for (const Values& values : section.repetitions) {
            ctemplate::TemplateDictionary* repetition =
                dictionary.AddSectionDictionary(section.key);
            for (const auto& [variable, value] : values)
                repetition->SetValueWithoutCopy(variable, value);
        }
    }
    ctemplate::TemplateCache cache;
    std::string page;
    if (!cache.ExpandWithData(file_, ctemplate::DO_NOT_STRIP, &dictionary, nullptr, &page))
        throw Error(0, QStringLiteral("ctemplate cannot expand it"), QString::fromStdString(file_));
    return page;
}

void CtemplatePage::translateItems(const QList<TemplateCall>& calls) {
    for (const TemplateCall& call : calls) {
        if (call.operation != Operation::SetItem || markers_.contains(call.arguments[0]))
            continue;
        const QString& item = call.arguments[0];
        const QString variable = QStringLiteral("I%1").arg(markers_.size());
        markers_.insert(item, variable);
        text_.replace(u'[' + item + u']', variableMark(variable));
    }
}

void CtemplatePage::translateBlocks(const QList<TemplateCall>& calls) {
    outside_ = text_;
    for (const TemplateCall& call : calls)
        if (call.operation == Operation::SetBlock)
            addSection(call.arguments[1], separatorOf(call.arguments[1], calls));
}

void CtemplatePage::addSection(const QString& block, const QString& separator) {
    const QString begin = QStringLiteral("&lt;!--BEGIN %1--&gt;").arg(block);
    const QString end = QStringLiteral("&lt;!--END %1--&gt;").arg(block);
    const qsizetype from = text_.indexOf(begin, 0, Qt::CaseInsensitive);
    const qsizetype to = text_.lastIndexOf(end, -1, Qt::CaseInsensitive);
    if (from < 0 || to < from)
        throw Error(0, QStringLiteral("has no marks in the template"), block);

    const QString whole = text_.sliced(from, to + end.size() - from);
    const QString body = text_.sliced(from + begin.size(), to - from - begin.size());
    const QString key = QStringLiteral("B%1").arg(sections_.size());
    text_.replace(whole, QStringLiteral("{{#%1}}%2{{#%1_separator}}%3{{/%1_separator}}{{/%1}}")
                             .arg(key, body, separator));
    outside_.remove(whole);
    sections_.push_back({block, body, key.toStdString(), {}});
}

/// Follows the calls: a parsed block is one repetition of its section with the values of that
/// moment, and the last call parses the page.
void CtemplatePage::fill(const QList<TemplateCall>& calls) {
    QHash<QString, QString> items;
    for (const TemplateCall& call : calls) {
        if (call.operation == Operation::SetItem)
            items.insert(call.arguments[0], call.arguments[1]);
        if (call.operation != Operation::Parse)
            continue;
        const auto section =
            std::find_if(sections_.begin(), sections_.end(),
                         [&](const Section& one) { return one.block == call.arguments[1]; });
        if (section != sections_.end())
            section->repetitions.push_back(valuesIn(section->body, items));
    }
    values_ = valuesIn(outside_, items);
}

/// The values that the marks of the text ask for.
CtemplatePage::Values CtemplatePage::valuesIn(const QString& text,
                                              const QHash<QString, QString>& items) const {
    Values values;
    for (auto item = items.begin(); item != items.end(); ++item) {
        const QString variable = markers_.value(item.key());
        if (text.contains(variableMark(variable)))
            values.emplace_back(variable.toStdString(), item.value().toStdString());
    }
    return values;
}

} // namespace quillford
