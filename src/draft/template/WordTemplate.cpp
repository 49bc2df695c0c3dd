#include "draft/template/WordTemplate.h"

#include "base/Files.h"

#include <QFile>

namespace quillford {

namespace {

QString tagText(const QString& tag) {
    return QStringLiteral("<!--") + tag + QStringLiteral("-->");
}

QString beginTag(const QString& block) {
    return QStringLiteral("BEGIN ") + block;
}

QString endTag(const QString& block) {
    return QStringLiteral("END ") + block;
}

} // namespace

template <typename Step>
bool WordTemplate::trapped(Step step) {
    failure_.reset();
    try {
        step();
    } catch (const Error& error) {
        failure_ = error;
    }
    return !failure_;
}

// ---- the document

bool WordTemplate::Load(const QString&, const QString& path) {
    return trapped([&] {
        start(path);
        word().addDocument(path);
        QFile file(path);
        if (!file.remove())
            raiseFileError(file);
    });
}

bool WordTemplate::openWord(const QString& path) {
    return trapped([&] {
        start(path);
        word().openDocument(path);
    });
}

bool WordTemplate::Save(const QString& path) {
    return SaveAs(path);
}

bool WordTemplate::SaveAs(const QString& path) {
    return trapped([&] { word().saveDocument(path); });
}

void WordTemplate::Unload() {
    word().closeDocument();
}

void WordTemplate::Wordprint() {
    word().printDocument();
}

QString WordTemplate::checkWordVersion() {
    return word().version();
}

void WordTemplate::start(const QString& path) {
    path_ = path;
    word_.reset(); // one that runs already quits before the next starts
    word_ = processor_.start();
}

WordApplication& WordTemplate::word() {
    constexpr int NothingLoaded = 91; // the runtime's number for an object that was never set
    if (!word_)
        throw Error(NothingLoaded, QStringLiteral("no document is loaded"));
    return *word_;
}

// ---- marks

bool WordTemplate::findFrom(const QString& text, const Place& start, const Place& end) {
    if (start || end) {
        const Place from = start ? start : word().selectionStart();
        word().select(from, end ? end : from);
    }
    return word().find(text);
}

bool WordTemplate::SelectTag(const QString& tag, const Place& start, const Place& end) {
    return findFrom(tagText(tag), start, end);
}

bool WordTemplate::SelectItem(const QString& name, const Place& start, const Place& end) {
    return findFrom(u'[' + name + u']', start, end);
}

/// How many marks of the item stand in the document: the search is followed until it comes round.
int WordTemplate::markCount(const QString& name) {
    if (!SelectItem(name))
        return 0;
    const Place first = word().selectionStart();
    int count = 1;
    while (SelectItem(name) && !word().selectionStart()->isSameAs(*first))
        ++count;
    return count;
}

/// The marks are counted before the first is changed: values may hold the mark once more, and a
/// search that wraps round would never come to an end.
template <typename Change>
void WordTemplate::changeMarks(const QString& name, bool all, Change change) {
    const int most = all ? markCount(name) : 1;
    for (int i = 0; i < most && SelectItem(name); ++i)
        change();
}

void WordTemplate::SetItem(const QString& name, const QString& value, bool all) {
    changeMarks(name, all, [&] { word().setSelectedText(value); });
}

void WordTemplate::SetFigure(const QString& name, const QString& path, bool all) {
    changeMarks(name, all, [&] { word().addPicture(path); });
}

void WordTemplate::setHeader(const QString& fileNo) {
    word().setHeader(QStringLiteral("Confidential Provisional Patent Application (") + fileNo +
                     u')');
}

void WordTemplate::ResetListNum(int number) {
    word().setListNumberFormat(3, 2, QString::number(number) + QStringLiteral(".%2."));
}

// ---- single characters

void WordTemplate::InsertLine() {
    word().setSelectedText(QStringLiteral("\r\n"));
}

void WordTemplate::DeleteLine() {
    word().deleteForward();
}

void WordTemplate::DeleteSpace() {
    word().deleteForward();
}

void WordTemplate::deleteChar() {
    word().deleteBackward();
}

// ---- blocks

bool WordTemplate::SelectBlock(const QString& name, bool withTags) {
    if (!SelectTag(beginTag(name)))
        return false;
    const Place start = withTags ? word().selectionStart() : word().selectionEnd();
    word().moveRight();
    if (!SelectTag(endTag(name)))
        return false;
    const Place end = withTags ? word().selectionEnd() : word().selectionStart();
    word().select(start, end);
    return true;
}

void WordTemplate::RemoveBlock(const QString& name, bool withTags) {
    if (SelectBlock(name, withTags))
        word().deleteForward();
}

/// Separator and copy go in at the place behind what is there already: a body, then for each copy
/// the separator and the copy.
void WordTemplate::DuplicateBlock(const QString& name, int count, const QString& separator) {
    if (count < 1 || !SelectBlock(name, false))
        return;
    word().copy();
    word().moveRight();
    for (int i = 0; i < count; ++i) {
        word().setSelectedText(separator);
        word().paste();
    }
    SelectBlock(name, false);
    word().moveLeft();
}

void WordTemplate::RemoveBlockTag(const QString& name) {
    for (const QString& tag : {beginTag(name), endTag(name)})
        if (SelectTag(tag))
            word().setSelectedText({});
}

} // namespace quillford
