#include "draft/compose/DocumentOutline.h"
#include "support/Files.h"
#include "support/PrintQt.h"

#include <QRegularExpression>
#include <QSet>
#include <QStringList>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

QString templateText(const QString& name) {
    return QString::fromUtf8(contentOf(u":/templates/"_s + name + u".htm"_s));
}

const QString& draftTemplate() {
    static const QString text = templateText(u"HTMLTEMPLATE"_s);
    return text;
}

const QString& indexTemplate() {
    static const QString text = templateText(u"INDEXHTMLTEMPLATE"_s);
    return text;
}

/// What stands behind the place of the body tag.
QString body(const QString& page) {
    static const QRegularExpression tag(u"\\n(\\[BODY\\]|<body [^>]*>)\\n"_s);
    const QRegularExpressionMatch match = tag.match(page);
    EXPECT_TRUE(match.hasMatch());
    return page.sliced(match.capturedEnd(), page.indexOf(u"</body>"_s) - match.capturedEnd());
}

QString withoutTags(QString html) {
    static const QRegularExpression tag(u"<[^>]*>"_s);
    static const QRegularExpression begin(u"&lt;!--BEGIN (.*?)--&gt;"_s);
    static const QRegularExpression end(u"&lt;!--END (.*?)--&gt;"_s);
    return html.remove(tag).replace(begin, u"{\\1}"_s).replace(end, u"{/\\1}"_s);
}

/// The parts of a page; what stands between them may be divisions and nothing else.
QList<OutlinePart> outlineOf(const QString& html) {
    static const QRegularExpression part(
        u"<p(?: class=\"([^\"]*)\")?>(.*?)</p>|&lt;!--(BEGIN|END) (.*?)--&gt;|"
        "(<br clear=all style='page-break-before:always'>)|<hr>"_s);
    static const QRegularExpression between(u"^(\\s|<div [^>]*>|</div>)*$"_s);
    QList<OutlinePart> parts;
    qsizetype from = 0;
    for (const QRegularExpressionMatch& match : part.globalMatch(html)) {
        EXPECT_TRUE(between.match(html.sliced(from, match.capturedStart() - from)).hasMatch())
            << qPrintable(html.sliced(from, match.capturedStart() - from));
        from = match.capturedEnd();
        if (match.captured().startsWith(u"<p"))
            parts.append({match.captured(1), withoutTags(match.captured(2))});
        else if (!match.captured(3).isEmpty())
            parts.append({match.captured(3).toLower(), match.captured(4)});
        else
            parts.append({match.captured(5).isEmpty() ? u"rule"_s : u"page break"_s, {}});
    }
    EXPECT_TRUE(between.match(html.sliced(from)).hasMatch()) << qPrintable(html.sliced(from));
    return parts;
}

void expectSameOutline(const QList<OutlinePart>& actual, const QList<OutlinePart>& expected) {
    for (qsizetype i = 0; i < std::min(actual.size(), expected.size()); ++i)
        ASSERT_EQ(actual[i], expected[i]) << "part " << i;
    EXPECT_EQ(actual.size(), expected.size());
}

QSet<QString> marks(const QString& page) {
    static const QRegularExpression mark(u"\\[([^\\]]*)\\]"_s);
    QSet<QString> names;
    for (const QRegularExpressionMatch& match : mark.globalMatch(page))
        names.insert(match.captured(1));
    return names;
}

/// The declarations of a style rule, as one text.
QString style(const QString& page, const QString& selector) {
    const qsizetype at = page.indexOf(u"\n"_s + selector + u" {"_s);
    EXPECT_GE(at, 0) << qPrintable(selector);
    return page.sliced(at, page.indexOf(u'}', at) - at);
}

void expectStyle(const QString& page, const QString& selector, const QStringList& declarations) {
    for (const QString& declaration : declarations)
        EXPECT_TRUE(style(page, selector).contains(u"\n  "_s + declaration + u';'))
            << qPrintable(selector + u": "_s + declaration);
}

} // namespace

TEST(Templates, the_draft_is_the_document_told_part_by_part) {
    expectSameOutline(outlineOf(body(draftTemplate())), documentOutline());
}

TEST(Templates, the_index_is_its_title_and_ten_paragraphs) {
    const QList<OutlinePart> outline = documentOutline();
    const qsizetype title = outline.size() - 13;
    ASSERT_EQ(outline[title].text, u"Index of Elements"_s);
    expectSameOutline(outlineOf(body(indexTemplate())), outline.sliced(title));
}

TEST(Templates, every_fixed_paragraph_is_found_once) {
    const QString text = withoutTags(draftTemplate());
    int paragraphs = 0;
    for (const OutlinePart& part : documentOutline()) {
        const bool isFixed = !part.text.contains(u'[') && !part.text.startsWith(u'&');
        if (!isFixed || (part.kind != u"text" && !part.kind.isEmpty()))
            continue;
        ++paragraphs;
        EXPECT_EQ(text.count(part.text), 1) << qPrintable(part.text);
    }
    EXPECT_EQ(paragraphs, 6);
}

TEST(Templates, the_draft_has_exactly_the_marks_that_are_filled) {
    EXPECT_EQ(marks(draftTemplate()),
              QSet<QString>({u"DocumentTitle"_s,
                             u"BODY"_s,
                             u"Title-FileNo1"_s,
                             u"I/WE"_s,
                             u"2-AND"_s,
                             u"2-INVENTOR"_s,
                             u"2-COUNTRY"_s,
                             u"1-INVENTION TITLE"_s,
                             u"1-INVENTION TITLE-U"_s,
                             u"1-GENERIC-PF"_s,
                             u"a/an"_s,
                             u"3-PURPOSE"_s,
                             u"a-an"_s,
                             u"1-GENERIC-SG"_s,
                             u"5-GENERAL"_s,
                             u"a/an-pur"_s,
                             u"1-INVENTION TITLE-pur"_s,
                             u"3-PURPOSE-pur"_s,
                             u"object"_s,
                             u"FIGURE I:"_s,
                             u"Figure J is a FIGURE-TYPE of the present invention."_s,
                             u"4-FIGURE DESCRIPTION"_s,
                             u"5-GENERAL-DE"_s,
                             u"B-MAIN ELEMENT"_s,
                             u"5-MAIN ELEMENT"_s,
                             u"5-MAIN DESCRIPTION"_s,
                             u"7-DETAILED"_s,
                             u"7-VARIATIONS"_s,
                             u"C-MAIN ELEMENT"_s,
                             u"7-INTERCONNECTIONS"_s,
                             u"D-MAIN ELEMENT"_s,
                             u"7-ALTERNATIVE EMBODIMENTS"_s,
                             u"E-MAIN ELEMENT"_s,
                             u"9-OPERATION"_s,
                             u"A/An"_s,
                             u"IMAGE OF DRAWING ZERO"_s,
                             u"IMAGE OF DRAWING"_s,
                             u"FIG. N"_s,
                             u"Element-1"_s,
                             u"Element-2"_s,
                             u"Element-3"_s,
                             u"Element-4"_s,
                             u"Element-5"_s,
                             u"Element-6"_s,
                             u"Element-7"_s,
                             u"Element-8"_s,
                             u"Element-9"_s,
                             u"Element-10"_s}));
}

TEST(Templates, the_draft_has_seven_page_breaks) {
    EXPECT_EQ(draftTemplate().count(u"<br clear=all style='page-break-before:always'>"_s), 7);
    EXPECT_EQ(indexTemplate().count(u"page-break"_s), 0);
}

TEST(Templates, the_head_begins_with_the_charset_and_then_the_policy) {
    const QString head =
        u"<!DOCTYPE html>\n<html lang=\"en-US\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; "
        "img-src file: data:; style-src 'unsafe-inline'; base-uri 'none'; form-action 'none'\">\n"
        "<title>"_s;
    EXPECT_TRUE(draftTemplate().startsWith(head + u"[DocumentTitle]</title>\n"_s));
    EXPECT_TRUE(indexTemplate().startsWith(head + u"Index of Elements</title>\n"_s));
}

TEST(Templates, nothing_in_them_runs_or_is_fetched) {
    for (const QString& page : {draftTemplate(), indexTemplate()})
        for (const QString& sign : {u"<script"_s, u"http:"_s, u"https:"_s, u"url("_s, u"@import"_s,
                                    u"<link"_s, u"<iframe"_s})
            EXPECT_FALSE(page.contains(sign, Qt::CaseInsensitive)) << qPrintable(sign);
}

TEST(Templates, the_composer_supplies_the_body_tag_of_the_draft) {
    EXPECT_EQ(draftTemplate().count(u"</head>\n[BODY]\n"_s), 1);
    EXPECT_EQ(draftTemplate().count(u"<body"_s), 0);
    EXPECT_TRUE(draftTemplate().endsWith(u"</body>\n</html>\n"_s));
}

TEST(Templates, the_index_brings_its_own_locked_body_tag) {
    EXPECT_EQ(indexTemplate().count(
                  u"<body lang=EN-US style='tab-interval:21.0pt;text-justify-trim:punctuation' "
                  "onselectstart='return false' oncopy='document.selection.empty()' "
                  "onbeforecopy='return false' ondragstart='return false' "
                  "oncontextmenu='return false'>"_s),
              1);
}

TEST(Templates, names_are_bold_and_the_first_sentence_of_the_notice_is_underlined) {
    EXPECT_EQ(draftTemplate().count(u"<b>[2-INVENTOR]</b>"_s), 1);
    EXPECT_EQ(draftTemplate().count(u"<b>[Element-1]</b>"_s), 1);
    EXPECT_EQ(indexTemplate().count(u"<b>[Element-1]</b>"_s), 1);
    EXPECT_EQ(draftTemplate().count(u"<p><b><u>NOTICE:  NEVER RELY UPON A SELF-DRAFTED U.S. "
                                    "PROVISIONAL PATENT APPLICATION TO PROTECT YOUR PATENT "
                                    "RIGHTS.</u>  YOU SHOULD ALWAYS "_s),
              1);
    EXPECT_EQ(draftTemplate().count(u" OF SUCH MISTAKES OR OMISSIONS.</b></p>"_s), 1);
}

TEST(Templates, the_notice_stands_in_a_box_of_its_own) {
    const qsizetype box =
        draftTemplate().indexOf(u"<div class=\"notice\" style='border:solid 2.25pt black;"_s);
    const qsizetype head = draftTemplate().indexOf(u"NOTICE TO APPLICANT"_s);
    const qsizetype last = draftTemplate().indexOf(
        u"prior to filing your provisional patent application.</p>\n  </div>"_s);
    EXPECT_GE(box, 0);
    EXPECT_LT(box, head);
    EXPECT_LT(head, last);
}

TEST(Templates, the_paper_is_letter_with_margins_of_an_inch) {
    for (const QString& page : {draftTemplate(), indexTemplate()})
        expectStyle(page, u"@page"_s, {u"size:612.0pt 792.0pt"_s, u"margin:72.0pt"_s});
}

TEST(Templates, paragraphs_are_justified_in_12_point_and_line_height_150_percent) {
    for (const QString& page : {draftTemplate(), indexTemplate()})
        expectStyle(page, u"p"_s,
                    {u"font-family:\"Times New Roman\", Times, serif"_s, u"font-size:12.0pt"_s,
                     u"line-height:150%"_s, u"text-align:justify"_s});
    expectStyle(draftTemplate(), u"p.text, p.objects"_s, {u"text-indent:36.0pt"_s});
}

TEST(Templates, every_kind_of_paragraph_has_its_type) {
    const QString& page = draftTemplate();
    const QString centred = u"text-align:center"_s;
    const QString bold = u"font-weight:bold"_s;
    expectStyle(page, u"p.file-number"_s, {centred, u"font-size:10.0pt"_s});
    expectStyle(page, u"div.notice p"_s, {u"font-size:10.0pt"_s});
    expectStyle(page, u"p.application"_s, {centred, bold, u"font-size:16.0pt"_s});
    expectStyle(page, u"p.document-kind"_s,
                {centred, bold, u"font-size:14.0pt"_s, u"line-height:200%"_s});
    expectStyle(page, u"p.section"_s, {centred, bold});
    expectStyle(page, u"p.subsection"_s, {centred, bold});
    expectStyle(page, u"p.lettered"_s,
                {bold, u"font-style:italic"_s, u"margin-left:36pt"_s, u"text-indent:-36pt"_s});
    expectStyle(page, u"p.drawing"_s, {centred});
    expectStyle(page, u"p.figure"_s, {centred, bold, u"font-size:24px"_s});
    for (const QString& either : {page, indexTemplate()}) {
        expectStyle(either, u"p.centred"_s, {centred});
        expectStyle(either, u"p.element"_s, {u"line-height:100%"_s});
    }
}
