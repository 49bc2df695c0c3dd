#include "help/HelpPage.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QUrl>
#include <QXmlStreamReader>

namespace quillford {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Reads a page element by element.
class PageReader {
public:
    PageReader(QFile& file, HelpPage& read) : reader(&file), page(read) {}

    void readAll() {
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.isStartElement())
                begin(reader.name());
            else if (reader.isCharacters())
                text += reader.text();
            else if (reader.isEndElement())
                end(reader.name());
        }
        if (reader.hasError())
            page.damage = u"line %1: %2"_s.arg(reader.lineNumber()).arg(reader.errorString());
    }

private:
    void begin(QStringView element) {
        const QXmlStreamAttributes attributes = reader.attributes();
        if (element == u"a")
            page.links += attributes.value("href"_L1).toString();
        else if (element == u"img")
            page.parts += attributes.value("src"_L1).toString();
        else if (element == u"link")
            page.parts += attributes.value("href"_L1).toString();
        else if (element == u"body")
            text.clear();
        else if (element == u"td" || element == u"th")
            text += u' '; // cells stand apart without a blank between them
        if (element == u"title" || element == u"h1")
            begun = text.size();
    }

    void end(QStringView element) {
        if (element == u"title")
            page.title = joinedText(text.mid(begun));
        else if (element == u"h1")
            page.headings += joinedText(text.mid(begun));
        else if (element == u"body")
            page.text = joinedText(text);
    }

    QXmlStreamReader reader;
    HelpPage& page;
    QString text;        // of the body so far
    qsizetype begun = 0; // where the title or the heading begins in it
};

HelpPage readPage(const QString& path) {
    HelpPage page;
    page.name = QDir(helpFolder()).relativeFilePath(path);
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        PageReader(file, page).readAll();
    else
        page.damage = file.errorString();
    return page;
}

} // namespace

QString HelpPage::section() const {
    return name.section(u'/', 0, -2);
}

bool HelpPage::isStartPage() const {
    return name.contains(u"index.htm"_s);
}

QString HelpPage::target(const QString& address) const {
    const QUrl folder = QUrl::fromLocalFile(helpFolder() + u'/' + section() + u'/');
    return QDir(helpFolder()).relativeFilePath(folder.resolved(QUrl(address)).toLocalFile());
}

QString helpFolder() {
    return QStringLiteral(QUILLFORD_HELP);
}

QList<HelpPage> helpPages() {
    QList<HelpPage> pages;
    QDirIterator files(helpFolder(), {u"*.htm"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        pages += readPage(files.next());
    return pages;
}

QString joinedText(const QString& text) {
    static const QRegularExpression white(u"\\s+"_s);
    return text.split(white, Qt::SkipEmptyParts).join(u' ');
}

} // namespace quillford
