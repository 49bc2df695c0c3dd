#include "draft/compose/DocumentOutline.h"
#include "draft/compose/WordTemplateText.h"
#include "support/PrintQt.h"

#include <QRegularExpression>
#include <QStringList>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

QString begin(const QString& block) {
    return u"<!--BEGIN "_s + block + u"-->"_s;
}

QString end(const QString& block) {
    return u"<!--END "_s + block + u"-->"_s;
}

/// The page's wording with what is told otherwise of the Word document.
QString asInWord(QString text) {
    static const QRegularExpression letter(u"^(A|\\[[BCE]-MAIN ELEMENT\\])\\.(&nbsp;)+"_s);
    static const QRegularExpression blockBegin(u"\\{([^/}]*)\\}"_s);
    static const QRegularExpression blockEnd(u"\\{/([^}]*)\\}"_s);
    text.remove(letter).remove(u"&nbsp;"_s);
    text.replace(blockBegin, begin(u"\\1"_s)).replace(blockEnd, end(u"\\1"_s));
    text.replace(u"[D-MAIN ELEMENT]"_s, u"Alternative Embodiments of Invention"_s);
    text.replace(u"Other objects and advantages of the present invention"_s,
                 u"Other objects and advantages of the various embodiments of the present "
                 "invention"_s);
    text.replace(u"VALID CLAIM FOR THE [1-INVENTION TITLE]"_s,
                 u"VALID CLAIM FOR THE [1-INVENTION TITLE-UP]"_s);
    if (text == u"ABSTRACT OF THE DISCLOSURE"_s)
        return u"ABSTRACT"_s;
    return text == u"Index of Elements"_s ? u"INDEX OF ELEMENTS"_s : text;
}

/// The paragraphs that follow from the page's outline. The head line stands in the page header, the
/// rules are borders, and a page break belongs to the heading behind it. The tags stand against the
/// text beside them; those of whole paragraphs at the end of what comes before.
QStringList expectedParagraphs() {
    const QStringList insideParagraphs{u"Disclosing Figure"_s, u"Disclosing Index"_s};
    const QStringList leftOut{u"file-number"_s, u"rule"_s, u"page break"_s};
    QStringList paragraphs;
    QString tag;
    for (const OutlinePart& part : documentOutline()) {
        if (part.kind == u"begin" && insideParagraphs.contains(part.text)) {
            tag = begin(part.text);
        } else if (part.kind == u"begin") {
            paragraphs.back() += begin(part.text);
        } else if (part.kind == u"end") {
            paragraphs.back() += end(part.text);
        } else if (part.kind == u"objects") {
            paragraphs +=
                {begin(u"Disclosing Object"_s) + u"[object]"_s, end(u"Disclosing Object"_s)};
        } else if (part.kind == u"element" && tag.isEmpty()) {
            paragraphs.back() += part.text;
        } else if (!leftOut.contains(part.kind)) {
            paragraphs.append(tag + asInWord(part.text));
            tag.clear();
        }
    }
    return paragraphs;
}

QStringList paragraphsOf(const QList<WordParagraph>& paragraphs) {
    QStringList texts;
    for (const WordParagraph& paragraph : paragraphs)
        texts.append(paragraph.text);
    return texts;
}

QStringList textsOf(const QString& style) {
    QStringList texts;
    for (const WordParagraph& paragraph : wordTemplateParagraphs())
        if (paragraph.style == style)
            texts.append(paragraph.text);
    return texts;
}

} // namespace

TEST(WordTemplateWording, it_is_the_pages_wording_with_the_told_differences) {
    const QStringList actual = paragraphsOf(wordTemplateParagraphs());
    const QStringList expected = expectedParagraphs();
    for (qsizetype i = 0; i < std::min(actual.size(), expected.size()); ++i)
        EXPECT_EQ(actual[i], expected[i]) << "in paragraph " << i;
    EXPECT_EQ(actual.size(), expected.size());
}

TEST(WordTemplateWording, new_pages_begin_where_the_page_has_its_breaks) {
    QStringList expected;
    const QList<OutlinePart> outline = documentOutline();
    for (qsizetype i = 0; i < outline.size(); ++i)
        if (outline[i].kind == u"page break")
            expected.append(asInWord(outline[i + 1].text));
    EXPECT_EQ(textsOf(u"SectionOnNewPage"_s) + textsOf(u"DrawingsOnNewPage"_s) +
                  textsOf(u"CentredOnNewPage"_s),
              expected);
}

TEST(WordTemplateWording, the_lettered_headings_are_one_list) {
    EXPECT_EQ(textsOf(u"Lettered"_s),
              QStringList({u"Overview"_s, u"[5-MAIN ELEMENT]"_s,
                           u"Connections of Main Elements and Sub-Elements of Invention"_s,
                           u"Alternative Embodiments of Invention"_s,
                           u"Operation of Preferred Embodiment"_s}));
}

TEST(WordTemplateWording, what_brings_its_own_tab_has_no_indent_of_the_template) {
    for (const QString& mark :
         {u"[object]"_s, u"[5-MAIN DESCRIPTION]"_s, u"[7-DETAILED]"_s, u"[7-VARIATIONS]"_s,
          u"[7-INTERCONNECTIONS]"_s, u"[7-ALTERNATIVE EMBODIMENTS]"_s, u"[9-OPERATION]"_s})
        EXPECT_TRUE(textsOf(u"Filled"_s).join(u' ').contains(mark)) << qPrintable(mark);
}

TEST(WordTemplateWording, the_title_stands_eleven_times) {
    EXPECT_EQ(wordTemplateText().count(u"[1-INVENTION TITLE]"_s), 11);
}
