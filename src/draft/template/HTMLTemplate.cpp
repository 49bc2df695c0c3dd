#include "draft/template/HTMLTemplate.h"

#include "base/Error.h"
#include "base/Files.h"
#include "draft/template/BlockSearch.h"

namespace quillford {

namespace {

const QString BlockErrorSource = QStringLiteral("Template Class");
const QString ItemErrorSource = QStringLiteral("HTML Template Class");

/// The runtime's number for a key that a table holds already.
constexpr int DuplicateKey = 457;

/// The text with a carriage return and line feed behind each of its lines.
QString withLineEnds(QStringView text) {
    QString result;
    result.reserve(text.size() + text.size() / 16 + 2);
    while (!text.isEmpty()) {
        const qsizetype end = text.indexOf(u'\n');
        QStringView line = end < 0 ? text : text.first(end);
        text = end < 0 ? QStringView() : text.sliced(end + 1);
        if (line.endsWith(u'\r'))
            line.chop(1);
        result += line;
        result += u"\r\n";
    }
    return result;
}

} // namespace

bool HTMLTemplate::Load(const QString& name, const QString& path) {
    if (path.isEmpty())
        return false;
    addBlock(name, withLineEnds(QString::fromUtf8(contentOfFile(path))));
    return true;
}

void HTMLTemplate::SaveAs(const QString& path, const QString& text) const {
    replaceFile(path, text.toUtf8() + "\r\n");
}

void HTMLTemplate::SetItem(const QString& name, const QString& value, bool append) {
    if (append)
        items_.append(name, value);
    else
        items_.set(name, value);
}

void HTMLTemplate::UnSetItem(const QString& name) {
    items_.remove(name);
}

void HTMLTemplate::SetBlock(const QString& parent, const QString& block,
                            const QString& placeholder) {
    const QString source = blockNamed(parent).text();
    const QString mark = u'[' + (placeholder.isEmpty() ? block : placeholder) + u']';
    QString rest = source;
    for (const FoundBlock& found : findBlocks(source, block, BlockErrorSource)) {
        addBlock(block, found.body);
        rest.replace(found.whole, mark);
    }
    blockNamed(parent).setText(rest);
}

void HTMLTemplate::Parse(const QString& target, const QString& block, const QString& separator) {
    const auto text = blockNamed(block).rendered(items_, MostCharacters);
    const ItemTable::Item* item = items_.find(target);
    const bool appends = item && !separator.isEmpty();
    if (!text || (appends && item->value.size() + separator.size() + text->size() > MostCharacters))
        throw Error(TextTooLong, QStringLiteral("The text of block %1 is over 256 MB").arg(block),
                    BlockErrorSource);
    if (!appends)
        return items_.set(target, *text);
    items_.append(target, separator);
    items_.append(target, *text);
}

QString HTMLTemplate::p(const QString& name) const {
    const ItemTable::Item* item = items_.find(name);
    if (!item)
        throw Error(ErrorNumber, QStringLiteral("Item %1 Not Exists").arg(name), ItemErrorSource);
    return item->value;
}

TemplateBlock& HTMLTemplate::blockNamed(const QString& name) {
    const auto block = blocks_.find(name);
    if (block == blocks_.end())
        throw Error(ErrorNumber, QStringLiteral("Block %1 Not Exists").arg(name), BlockErrorSource);
    return *block;
}

void HTMLTemplate::addBlock(const QString& name, const QString& text) {
    if (blocks_.contains(name))
        throw Error(DuplicateKey, QStringLiteral("Block %1 exists already").arg(name),
                    BlockErrorSource);
    blocks_.insert(name, TemplateBlock(text));
}

} // namespace quillford
