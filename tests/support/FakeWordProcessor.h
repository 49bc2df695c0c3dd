#pragma once

#include "base/Error.h"
#include "platform/WordProcessor.h"
#include "support/Files.h"

#include <algorithm>
#include <optional>

namespace quillford {

/// A word processor over plain text with a cursor in it: a paragraph ends in a carriage return, a
/// picture is one object replacement character. What was done to the document stays here after the
/// application has quit. One application runs at a time.
class FakeWordProcessor final : public WordProcessor {
public:
    bool installed = true;
    QStringList openDocuments;
    /// What a new document holds; the template file's own text where this is nothing.
    std::optional<QString> templateText;
    /// Takes a picture that is not there for one that is.
    bool showsAnyPicture = false;
    /// The operation, counted from 1 over all that is asked of the application, that fails.
    int failingOperation = 0;

    // What was done.
    QString text;
    QString header;
    QStringList pictures;
    QStringList printed;
    QStringList listFormats;
    QStringList operations; ///< by their names, in order
    int running = 0;
    bool documentIsOpen = false;

    [[nodiscard]] bool isInstalled() const override { return installed; }

    [[nodiscard]] bool isDocumentOpen(const QString& path) const override {
        return openDocuments.contains(path);
    }

    [[nodiscard]] std::unique_ptr<WordApplication> start() override;

    /// The place before the character of this number, counted from 0.
    [[nodiscard]] static WordApplication::PlacePointer placeAt(qsizetype character);

private:
    class Application;
};

class FakeWordProcessor::Application final : public WordApplication {
public:
    struct PlaceInText final : Place {
        explicit PlaceInText(qsizetype character) : at(character) {}

        [[nodiscard]] bool isSameAs(const Place& other) const override {
            return at == dynamic_cast<const PlaceInText&>(other).at;
        }

        qsizetype at;
    };

    explicit Application(FakeWordProcessor& word) : word_(word) { ++word_.running; }

    ~Application() override {
        --word_.running;
        word_.documentIsOpen = false;
    }

    QString version() override {
        step("version");
        return QStringLiteral("1.0");
    }

    void addDocument(const QString& path) override {
        step("addDocument");
        const QString content = textOf(path);
        show(word_.templateText.value_or(content));
    }

    void openDocument(const QString& path) override {
        step("openDocument");
        show(textOf(path));
    }

    void saveDocument(const QString& path) override {
        step("saveDocument");
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            throw Error(76, file.errorString(), path);
        file.write(QString(word_.text).replace(u'\r', u'\n').toUtf8());
    }

    void printDocument() override {
        step("printDocument");
        word_.printed.append(word_.text);
    }

    void closeDocument() override {
        step("closeDocument");
        word_.documentIsOpen = false;
    }

    bool find(const QString& what) override {
        step("find");
        qsizetype at = word_.text.indexOf(what, start_, Qt::CaseInsensitive);
        if (at == start_ && end_ == at + what.size())
            at = word_.text.indexOf(what, end_, Qt::CaseInsensitive);
        if (at < 0)
            at = word_.text.indexOf(what, 0, Qt::CaseInsensitive);
        if (at >= 0)
            selectText(at, at + what.size());
        return at >= 0;
    }

    PlacePointer selectionStart() override { return std::make_shared<PlaceInText>(start_); }

    PlacePointer selectionEnd() override { return std::make_shared<PlaceInText>(end_); }

    void select(const PlacePointer& start, const PlacePointer& end) override {
        step("select");
        selectText(std::min(at(*start), at(*end)), std::max(at(*start), at(*end)));
    }

    QString selectedText() override { return word_.text.sliced(start_, end_ - start_); }

    void setSelectedText(const QString& text) override {
        step("setSelectedText");
        QString lines = text;
        lines.replace(QStringLiteral("\r\n"), QStringLiteral("\r")).replace(u'\n', u'\r');
        put(lines);
    }

    void copy() override {
        step("copy");
        copied_ = selectedText();
    }

    void paste() override {
        step("paste");
        put(copied_);
    }

    void moveLeft() override {
        step("moveLeft");
        const qsizetype place = start_ == end_ ? std::max<qsizetype>(start_ - 1, 0) : start_;
        selectText(place, place);
    }

    void moveRight() override {
        step("moveRight");
        const qsizetype place = start_ == end_ ? std::min(end_ + 1, word_.text.size()) : end_;
        selectText(place, place);
    }

    void deleteForward() override {
        step("deleteForward");
        if (start_ == end_)
            end_ = std::min(end_ + 1, word_.text.size());
        put({});
    }

    void deleteBackward() override {
        step("deleteBackward");
        if (start_ == end_)
            start_ = std::max<qsizetype>(start_ - 1, 0);
        put({});
    }

    void addPicture(const QString& path) override {
        step("addPicture");
        if (!word_.showsAnyPicture && !QFileInfo(path).isFile())
            throw Error(53, QStringLiteral("there is no such picture"), path);
        word_.pictures.append(path);
        put(QString(QChar(QChar::ObjectReplacementCharacter)));
    }

    void setHeader(const QString& text) override {
        step("setHeader");
        word_.header = text;
    }

    void setListNumberFormat(int list, int level, const QString& format) override {
        step("setListNumberFormat");
        word_.listFormats.append(QStringLiteral("%1/%2 ").arg(list).arg(level) + format);
    }

private:
    static qsizetype at(const Place& place) { return dynamic_cast<const PlaceInText&>(place).at; }

    static QString textOf(const QString& path) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            throw Error(53, file.errorString(), path);
        return QString::fromUtf8(file.readAll()).replace(u'\n', u'\r');
    }

    void step(const char* operation) {
        word_.operations.append(QString::fromLatin1(operation));
        if (word_.operations.size() == word_.failingOperation)
            throw Error(462, QStringLiteral("the word processor has died"));
    }

    void show(const QString& text) {
        word_.text = text;
        word_.documentIsOpen = true;
        selectText(0, 0);
    }

    void selectText(qsizetype start, qsizetype end) {
        start_ = start;
        end_ = end;
    }

    void put(const QString& text) {
        word_.text.replace(start_, end_ - start_, text);
        selectText(start_ + text.size(), start_ + text.size());
    }

    FakeWordProcessor& word_;
    QString copied_;
    qsizetype start_ = 0;
    qsizetype end_ = 0;
};

inline WordApplication::PlacePointer FakeWordProcessor::placeAt(qsizetype character) {
    return std::make_shared<Application::PlaceInText>(character);
}

inline std::unique_ptr<WordApplication> FakeWordProcessor::start() {
    if (!installed)
        throw Error(429, QStringLiteral("no word processor is installed"));
    return std::make_unique<Application>(*this);
}

} // namespace quillford
