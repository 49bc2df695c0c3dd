#pragma once

#include "support/Files.h"

#include <QList>
#include <QString>
#include <QXmlStreamReader>

#include <ostream>

namespace quillford {

/// A paragraph of the Word template: the name of its style and its text.
struct WordParagraph {
    QString style;
    QString text;

    friend bool operator==(const WordParagraph&, const WordParagraph&) = default;

    friend void PrintTo(const WordParagraph& paragraph, std::ostream* out) {
        *out << paragraph.style.toStdString() << ": " << paragraph.text.toStdString();
    }
};

/// The body of the Word template, from its source in the tree.
inline QList<WordParagraph> wordTemplateParagraphs() {
    const QString path =
        QStringLiteral(QUILLFORD_SOURCE_TREE "/resources/templates/WORDTEMPLATE.fodt");
    QXmlStreamReader xml(contentOf(path));
    QList<WordParagraph> paragraphs;
    bool isBody = false;
    bool isParagraph = false;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.qualifiedName() == u"office:text")
            isBody = true;
        if (!isBody)
            continue;
        if (xml.isStartElement() && xml.qualifiedName() == u"text:p") {
            paragraphs.append(
                {xml.attributes().value(QStringLiteral("text:style-name")).toString(), {}});
            isParagraph = true;
        } else if (xml.isEndElement() && xml.qualifiedName() == u"text:p") {
            isParagraph = false;
        } else if (xml.isStartElement() && xml.qualifiedName() == u"text:s") {
            const int count = std::max(1, xml.attributes().value(QStringLiteral("text:c")).toInt());
            paragraphs.back().text += QString(count, u' ');
        } else if (xml.isCharacters() && isParagraph) {
            paragraphs.back().text += xml.text();
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    return paragraphs;
}

/// The same as one text, as a word processor tells it: a carriage return behind each paragraph.
inline QString wordTemplateText() {
    QString text;
    for (const WordParagraph& paragraph : wordTemplateParagraphs())
        text += paragraph.text + u'\r';
    return text;
}

} // namespace quillford
