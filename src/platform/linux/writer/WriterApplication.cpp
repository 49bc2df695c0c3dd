#include "platform/linux/writer/WriterApplication.h"

#include "base/Files.h"
#include "platform/linux/writer/WriterPicture.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

namespace quillford {

/// A place is asked about through the same watched calls as everything else.
class WriterApplication::RangePlace final : public Place {
public:
    RangePlace(WriterApplication& application, WriterSelection::Range range)
        : application_(application), range_(std::move(range)) {}

    [[nodiscard]] bool isSameAs(const Place& other) const override {
        return application_.call_(
            [&] { return application_.open().selection.isSame(range_, rangeOf(other)); });
    }

    [[nodiscard]] static const WriterSelection::Range& rangeOf(const Place& place) {
        return dynamic_cast<const RangePlace&>(place).range_;
    }

private:
    WriterApplication& application_;
    WriterSelection::Range range_;
};

WriterApplication::WriterApplication(const WriterStart& start)
    : call_(start.patience), process_(start) {
    connection_.emplace(process_, call_, start.programFolder);
}

WriterApplication::~WriterApplication() {
    quit();
    call_.watchdog().guard(0); // from here on the process may be gone, and its number another's
}

/// Whatever the word processor answers to the request to end, the process is killed afterwards
/// where it still runs.
void WriterApplication::quit() {
    constexpr int Enough = 5000;
    open_.reset();
    bool isAsked = true;
    try {
        call_([&] { connection_->desktop()->terminate(); });
    } catch (const Error&) {
        isAsked = false; // it is dead, or dies in the middle of the answer
    }
    connection_.reset();
    process_.waitForEnd(isAsked ? Enough : 100);
}

QString WriterApplication::version() {
    return connection_->version();
}

// ---- the document

/// LibreOffice reads a copy under a plain name, so that neither the user's folders nor the letters
/// of a name matter to it.
QString WriterApplication::copyOf(const QString& path) {
    const QString copy = process_.place(QStringLiteral("%1.%2").arg(++copies_).arg(
        QFileInfo(path).suffix().toLower().replace(u'%', u'_')));
    replaceFile(copy, contentOfFile(path));
    return copy;
}

void WriterApplication::load(const QString& path, bool asTemplate) {
    if (open_)
        closeDocument();
    const QString file = copyOf(path);
    call_([&] { open_.emplace(WriterDocument(connection_->desktop(), file, asTemplate, path)); });
}

void WriterApplication::addDocument(const QString& templatePath) {
    load(templatePath, true);
}

void WriterApplication::openDocument(const QString& path) {
    load(path, false);
}

WriterApplication::Open& WriterApplication::open() {
    if (!open_)
        throw Error(UnoCalls::Refused, QStringLiteral("no document is open"));
    return *open_;
}

void WriterApplication::saveDocument(const QString& path) {
    const QString saved = process_.place(QStringLiteral("saved.doc"));
    call_([&] { open().document.save(saved); });
    replaceFile(path, contentOfFile(saved));
}

void WriterApplication::printDocument() {
    call_([&] { open().document.print(); });
}

void WriterApplication::closeDocument() {
    call_([&] {
        WriterDocument document = std::move(open().document);
        open_.reset();
        document.close();
    });
}

void WriterApplication::setHeader(const QString& text) {
    call_([&] { open().document.setHeader(text); });
}

void WriterApplication::setListNumberFormat(int list, int level, const QString& format) {
    call_([&] { open().document.setListNumberFormat(list, level, format); });
}

// ---- the selection

bool WriterApplication::find(const QString& text) {
    return call_([&] { return open().selection.find(text); });
}

WordApplication::PlacePointer WriterApplication::selectionStart() {
    return std::make_shared<RangePlace>(*this, call_([&] { return open().selection.start(); }));
}

WordApplication::PlacePointer WriterApplication::selectionEnd() {
    return std::make_shared<RangePlace>(*this, call_([&] { return open().selection.end(); }));
}

void WriterApplication::select(const PlacePointer& start, const PlacePointer& end) {
    call_([&] { open().selection.select(RangePlace::rangeOf(*start), RangePlace::rangeOf(*end)); });
}

QString WriterApplication::selectedText() {
    return call_([&] { return open().selection.text(); });
}

void WriterApplication::setSelectedText(const QString& text) {
    call_([&] { open().selection.setText(text); });
}

void WriterApplication::copy() {
    call_([&] { open().selection.copy(); });
}

void WriterApplication::paste() {
    call_([&] { open().selection.paste(); });
}

void WriterApplication::moveLeft() {
    call_([&] { open().selection.moveLeft(); });
}

void WriterApplication::moveRight() {
    call_([&] { open().selection.moveRight(); });
}

void WriterApplication::deleteForward() {
    call_([&] { open().selection.deleteForward(); });
}

void WriterApplication::deleteBackward() {
    call_([&] { open().selection.deleteBackward(); });
}

void WriterApplication::addPicture(const QString& path) {
    if (path.isEmpty())
        throw Error(UnoCalls::Refused, QStringLiteral("a figure has no picture"));
    const QString file = copyOf(path);
    call_([&] {
        open().selection.insert(makePicture(open().document, connection_->context(), file, path));
    });
    QFile::remove(file);
}

} // namespace quillford
