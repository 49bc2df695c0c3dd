#include "draft/pages/RichText.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringView>

#include <optional>

namespace quillford {

namespace {

const QString PictureScheme = QStringLiteral("picture:");
constexpr QStringView FigureStart = u"<img src=\"file:///";
constexpr int LongestSide = 810; // of a figure in the draft, in pixels

QString styleSheet(const QString& name) {
    QFile file(QStringLiteral(":/pages/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The pages that the templates make, known by their titles.
enum class PageKind { Other, Draft, Report };

PageKind kindOf(const QString& page) {
    const QStringView head = QStringView(page).first(qMax<qsizetype>(page.indexOf(u"</head>"), 0));
    if (head.contains(u"<title>Error Report</title>"))
        return PageKind::Report;
    if (head.contains(u"<title>Project - ") || head.contains(u"<title>Index of Elements</title>"))
        return PageKind::Draft;
    return PageKind::Other;
}

/// Takes the page's own style out of its head.
void cutStyle(QString& html) {
    const QStringView close = u"</style>";
    const qsizetype begin = html.indexOf(u"<style>");
    const qsizetype end = html.indexOf(close, begin);
    if (begin >= 0 && end > begin)
        html.remove(begin, end + close.size() - begin);
}

/// A length as the composer writes it.
std::optional<int> lengthIn(QStringView text) {
    bool isNumber = false;
    const int length = text.toInt(&isNumber);
    return isNumber && length >= 0 && length <= LongestSide ? std::optional(length) : std::nullopt;
}

/// A figure's tag in a page.
struct FigureTag {
    PageFigure figure;
    qsizetype end; ///< the character behind it
};

/// Reads the tag whose path begins here. The path ends where the width begins, whatever it holds.
/// Nothing for a tag that the composer has not written: it is left to the toolkit.
std::optional<FigureTag> figureTagAt(QStringView html, qsizetype path) {
    const QStringView width = u"\" width =\"";
    const QStringView height = u"\" height =\"";
    const QStringView after = u"\">";
    const qsizetype pathEnd = html.indexOf(width, path);
    const qsizetype heightAt = pathEnd < 0 ? -1 : html.indexOf(height, pathEnd + width.size());
    const qsizetype end = heightAt < 0 ? -1 : html.indexOf(after, heightAt + height.size());
    if (end < 0)
        return std::nullopt;
    const QStringView wide = html.sliced(pathEnd, heightAt - pathEnd).sliced(width.size());
    const QStringView high = html.sliced(heightAt, end - heightAt).sliced(height.size());
    FigureTag tag{{html.sliced(path, pathEnd - path).toString(), {}}, end + after.size()};
    if (tag.figure.path.contains(FigureStart))
        return std::nullopt;
    if (wide.isEmpty() && high.isEmpty())
        return tag;
    const auto columns = lengthIn(wide);
    const auto rows = lengthIn(high);
    if (!columns || !rows)
        return std::nullopt;
    tag.figure.size = QSize(*columns, *rows);
    return tag;
}

/// Gives every figure a name instead of its path. A size that is not known is left out. Figures are
/// what stands among the drawings, behind every text but the index: a picture that somebody typed
/// is none, whatever its tag looks like.
void nameFigures(RichText& text) {
    const qsizetype drawings = text.html.lastIndexOf(u"<div class=\"drawings\">");
    if (drawings < 0)
        return;
    const qsizetype index = text.html.indexOf(u"<p class=\"centred\">", drawings);
    const QStringView html = QStringView(text.html).first(index < 0 ? text.html.size() : index);
    QString named;
    qsizetype done = 0;
    for (qsizetype at = html.indexOf(FigureStart, drawings); at >= 0;
         at = html.indexOf(FigureStart, done)) {
        named += html.sliced(done, at - done);
        done = at + FigureStart.size();
        const auto tag = figureTagAt(html, done);
        if (!tag) {
            named += FigureStart;
            continue;
        }
        const QSize size = tag->figure.size;
        named += QStringLiteral("<img src=\"%1\"").arg(pictureName(text.figures.size()));
        if (size.isValid())
            named += QStringLiteral(" width=\"%1\" height=\"%2\"")
                         .arg(QString::number(size.width()), QString::number(size.height()));
        named += u'>';
        text.figures.append(tag->figure);
        done = tag->end;
    }
    named += QStringView(text.html).sliced(done);
    text.html = named;
}

/// A "<" that opens nothing is text to a browser; the toolkit would swallow what follows. It would
/// take all of a paragraph for the content of a link to another file as well.
void keepText(QString& html) {
    static const QRegularExpression opensNothing(QStringLiteral("<(?![A-Za-z/!?])"));
    static const QRegularExpression linkedFile(QStringLiteral("<link\\b[^<>]*>"),
                                               QRegularExpression::CaseInsensitiveOption);
    html.replace(opensNothing, QStringLiteral("&lt;"));
    html.remove(linkedFile);
}

/// Has the paragraph behind each page break begin a page.
void markNewPages(QString& html) {
    static const QRegularExpression newPage(
        QStringLiteral("<div class=\"new-page\">(?:<br[^<>]*>)?</div>\\s*<p "));
    html.replace(newPage, QStringLiteral("<p style=\"page-break-before:always\" "));
}

/// The objects stand one to a line in one paragraph, and the first line alone would be indented.
void splitObjects(QString& html) {
    const QString paragraph = QStringLiteral("<p class=\"objects\">");
    const qsizetype begin = html.indexOf(paragraph);
    const qsizetype end = html.indexOf(u"</p>", begin);
    if (begin < 0 || end < 0)
        return;
    QString objects = html.sliced(begin, end - begin);
    objects.replace(QStringLiteral("<br>"), QStringLiteral("</p>") + paragraph);
    html.replace(begin, end - begin, objects);
}

/// A division has no frame of its own: the notice becomes a table of one cell.
void frameNotice(QString& html) {
    static const QRegularExpression notice(
        QStringLiteral("<div class=\"notice\"[^<>]*>(.*?)</div>"),
        QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = notice.match(html);
    if (!match.hasMatch())
        return;
    html.replace(match.capturedStart(), match.capturedLength(),
                 QStringLiteral("<p class=\"space\">&nbsp;</p>"
                                "<table width=\"100%\" border=\"3\" cellspacing=\"0\" "
                                "style=\"margin-left:-3px; margin-right:-3px; border-style:solid; "
                                "border-color:black; border-collapse:collapse\">"
                                "<tr><td class=\"notice\">") +
                     match.captured(1) +
                     QStringLiteral("</td></tr></table><p class=\"space\">&nbsp;</p>"));
}

/// A paragraph without text has no height, but the toolkit gives its looks to the next one.
void dropEmptyParagraphs(QString& html) {
    static const QRegularExpression empty(QStringLiteral("<p(?: [^<>]*)?>\\s*</p>"));
    html.remove(empty);
}

/// Blanks at the end of a paragraph would push what is centred to the left, and what stands between
/// two paragraphs would become such a blank.
void cutBlanksBehindText(QString& html) {
    static const QRegularExpression behindText(QStringLiteral("(?<!\\s)\\s+</p>"));
    html.replace(behindText, QStringLiteral("</p>"));
    static const QRegularExpression between(QStringLiteral("</(p|div)>\\s+(?=<)"));
    html.replace(between, QStringLiteral("</\\1>"));
}

/// Gives height to what the toolkit leaves out: rules, line breaks between paragraphs, and empty
/// lines of the index. The breaks between two drawings have none in a browser either.
void keepEmptyLines(QString& html) {
    static const QRegularExpression betweenDrawings(
        QStringLiteral("<br><br>(\\s*<p class=\"drawing\">)"));
    static const QRegularExpression betweenParagraphs(
        QStringLiteral("(</p>\\s*)<br>(?=\\s*<p class=)"));
    static const QRegularExpression emptyElement(
        QStringLiteral("<p class=\"element\">(?:<b></b>)?</p>"));
    html.replace(betweenDrawings, QStringLiteral("\\1"));
    html.replace(betweenParagraphs, QStringLiteral("\\1<p>&nbsp;</p>"));
    html.replace(emptyElement, QStringLiteral("<p class=\"element\">&nbsp;</p>"));
    html.replace(QStringLiteral("<hr>"), QStringLiteral("<p class=\"rule\">&nbsp;</p>"));
}

/// Says of every paragraph how its lines stand, as the toolkit does not read it in a style sheet.
void alignParagraphs(QString& html, PageKind kind) {
    static const QRegularExpression centred(
        QStringLiteral("(class=\"(?:file-number|notice-head|application|document-kind|section|"
                       "subsection|drawing|figure|centred)\")>"));
    static const QRegularExpression plain(QStringLiteral("<p((?: (?![^<>]*align=)[^<>]*)?)>"));
    html.replace(centred, QStringLiteral("align=\"center\" \\1>"));
    if (kind == PageKind::Draft)
        html.replace(plain, QStringLiteral("<p align=\"justify\"\\1>"));
}

} // namespace

QString pictureName(qsizetype index) {
    return PictureScheme + QString::number(index);
}

qsizetype figureIndex(const QString& name) {
    bool isNumber = false;
    const qsizetype index = QStringView(name).mid(PictureScheme.size()).toInt(&isNumber);
    return isNumber && name.startsWith(PictureScheme) ? index : -1;
}

RichText richTextOf(const QString& page) {
    const PageKind kind = kindOf(page);
    RichText text{page, {}, {}};
    if (kind == PageKind::Other)
        return text;
    text.styleSheet = styleSheet(kind == PageKind::Report ? QStringLiteral("report.css")
                                                          : QStringLiteral("draft.css"));
    cutStyle(text.html);
    nameFigures(text);
    keepText(text.html);
    markNewPages(text.html);
    splitObjects(text.html);
    frameNotice(text.html);
    keepEmptyLines(text.html);
    dropEmptyParagraphs(text.html);
    cutBlanksBehindText(text.html);
    alignParagraphs(text.html, kind);
    return text;
}

} // namespace quillford
