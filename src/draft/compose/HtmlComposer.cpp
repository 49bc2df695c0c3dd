#include "draft/compose/HtmlComposer.h"

#include "base/Text.h"
#include "core/rules/FigureSize.h"
#include "draft/compose/DraftValues.h"
#include "draft/compose/IndexItems.h"
#include "draft/compose/TemplateFile.h"
#include "draft/compose/Trapped.h"
#include "draft/language/Capitals.h"

namespace quillford {

namespace {

const QString PageBlock = QStringLiteral("HTMLTemplate");
const QString Page = QStringLiteral("out");

const QString PlainBody =
    QStringLiteral("<body lang=EN-US style='tab-interval:21.0pt;text-justify-trim:punctuation'>");
const QString LockedBody = QStringLiteral(
    "<body lang=EN-US style='tab-interval:21.0pt;text-justify-trim:punctuation' "
    "onselectstart='return false' oncopy='document.selection.empty()' "
    "onbeforecopy='return false' ondragstart='return false' oncontextmenu='return false'>");

const QString LineBreak = QStringLiteral("<br>");

} // namespace

HtmlComposer::HtmlComposer(const ProjectFields& fields, Folders& folders, UserPrompts& prompts)
    : fields_(fields), folders_(folders), prompts_(prompts) {}

bool HtmlComposer::ExportToHTML(const QString& path, QString& html) {
    return trapFailures(failure_, [&] {
        HTMLTemplate page;
        if (!compose(page))
            return false;
        const bool isPreview = !html.isEmpty();
        if (isPreview)
            html = page.p(Page);
        else
            page.SaveAs(path, page.p(Page).replace(LockedBody, PlainBody));
        return true;
    });
}

bool HtmlComposer::compose(HTMLTemplate& page) {
    const QString file = writeTemplateFile(QStringLiteral("HTMLTEMPLATE"), folders_);
    if (!loadTemplateFile(page, PageBlock, file, prompts_))
        return false;
    setHead(page);
    fillInventors(page);
    setTitles(page);
    fillObjects(page);
    fillFigureDescriptions(page);
    fillMainElements(page);
    setClosing(page);
    setAbstractTitles(page);
    fillDrawings(page);
    fillIndexBlock(page, PageBlock, fields_);
    page.Parse(Page, PageBlock, QStringLiteral("False"));
    return true;
}

void HtmlComposer::setHead(HTMLTemplate& page) const {
    const QString fileNo = fields_.txtFileNo.trimmedText();
    page.SetItem(QStringLiteral("DocumentTitle"), QStringLiteral("Project - ") + fileNo);
    page.SetItem(QStringLiteral("BODY"), LockedBody);
    page.SetItem(QStringLiteral("Title-FileNo1"),
                 QStringLiteral("Confidential Provisional Patent Application (") + fileNo + u')');
}

void HtmlComposer::fillInventors(HTMLTemplate& page) const {
    const QString block = QStringLiteral("Disclosing Inventor Name");
    const QString target = QStringLiteral("DIN");
    page.SetItem(QStringLiteral("I/WE"), inventorPronoun(fields_));
    page.SetBlock(PageBlock, block, target);
    for (int i = 0; i < inventorCount(fields_); ++i) {
        page.SetItem(QStringLiteral("2-AND"), inventorConjunction(fields_, i));
        page.SetItem(QStringLiteral("2-INVENTOR"), inventorName(fields_, i));
        page.SetItem(QStringLiteral("2-COUNTRY"), inventorCountry(fields_, i));
        page.Parse(target, block, QStringLiteral(", "));
    }
}

void HtmlComposer::setTitles(HTMLTemplate& page) const {
    const QString title = lowerTitle(fields_);
    const QString purpose = closedText(fields_.txtPurpose);
    page.SetItem(QStringLiteral("1-INVENTION TITLE"), title);
    page.SetItem(QStringLiteral("1-INVENTION TITLE-U"), headingTitle(fields_, Route::Html));
    page.SetItem(QStringLiteral("1-GENERIC-PF"), genericPlural(fields_));
    page.SetItem(QStringLiteral("a/an"), titleArticle(fields_));
    page.SetItem(QStringLiteral("3-PURPOSE"), purpose);
    page.SetItem(QStringLiteral("a-an"), genericArticle(fields_));
    page.SetItem(QStringLiteral("1-GENERIC-SG"), genericSingular(fields_));
    page.SetItem(QStringLiteral("5-GENERAL"), closedText(fields_.txtMainElement));
    page.SetItem(QStringLiteral("a/an-pur"), titleArticle(fields_));
    page.SetItem(QStringLiteral("1-INVENTION TITLE-pur"), title);
    page.SetItem(QStringLiteral("3-PURPOSE-pur"), purpose);
}

void HtmlComposer::fillObjects(HTMLTemplate& page) const {
    const QString block = QStringLiteral("Disclosing Object");
    const QString target = QStringLiteral("DO");
    page.SetBlock(PageBlock, block, target);
    for (int i = 0; i < fields_.panelCount(FieldGroup::Objects); ++i) {
        page.SetItem(QStringLiteral("object"), objectSentence(fields_, i));
        page.Parse(target, block, LineBreak);
    }
}

void HtmlComposer::fillFigureDescriptions(HTMLTemplate& page) const {
    const QString block = QStringLiteral("Disclosing Figure Description");
    const QString target = QStringLiteral("DFD");
    const auto parse = [&](const QString& head, const QString& sentence, const QString& detail,
                           const QString& separator) {
        page.SetItem(QStringLiteral("FIGURE I:"), head);
        page.SetItem(figureSentenceItem(), sentence);
        page.SetItem(QStringLiteral("4-FIGURE DESCRIPTION"), detail);
        page.Parse(target, block, separator);
    };
    page.SetBlock(PageBlock, block, target);
    if (!hasFigures(fields_))
        return parse(noFiguresSentence(), {}, {}, {});
    for (int i = 0; i < fields_.panelCount(FieldGroup::Figures); ++i)
        parse(figureHeading(i), figureSentence(fields_, i),
              finished(fields_.txtFigureDetail(i), Route::Html), LineBreak);
}

void HtmlComposer::fillMainElements(HTMLTemplate& page) const {
    const QString block = QStringLiteral("Disclosing Main Element");
    const QString target = QStringLiteral("DME");
    page.SetItem(QStringLiteral("5-GENERAL-DE"), closedText(fields_.txtMainElement));
    page.SetBlock(PageBlock, block, target);
    const int elements = fields_.panelCount(FieldGroup::MainElements);
    requireDescriptions(fields_);
    for (int i = 0; i < elements; ++i) {
        page.SetItem(QStringLiteral("B-MAIN ELEMENT"), headingLetter(i));
        page.SetItem(QStringLiteral("5-MAIN ELEMENT"), elementName(fields_, i));
        page.SetItem(QStringLiteral("5-MAIN DESCRIPTION"),
                     finished(fields_.txtElementDes(i), Route::Html));
        page.SetItem(QStringLiteral("7-DETAILED"),
                     finished(fields_.txtMainElementNameDetail(i), Route::Html));
        page.SetItem(QStringLiteral("7-VARIATIONS"),
                     finished(fields_.txtMainElementVariations(i), Route::Html));
        page.Parse(target, block, LineBreak);
    }
}

void HtmlComposer::setClosing(HTMLTemplate& page) const {
    const int elements = fields_.panelCount(FieldGroup::MainElements);
    page.SetItem(QStringLiteral("C-MAIN ELEMENT"), headingLetter(elements));
    page.SetItem(QStringLiteral("7-INTERCONNECTIONS"),
                 finished(fields_.txtDesConnections, Route::Html));
    page.SetItem(QStringLiteral("D-MAIN ELEMENT"),
                 headingLetter(elements + 1) +
                     QStringLiteral(".&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;"
                                    "Alternative Embodiments of Invention"));
    page.SetItem(QStringLiteral("7-ALTERNATIVE EMBODIMENTS"),
                 alternativeEmbodiments(fields_, Route::Html));
    page.SetItem(QStringLiteral("E-MAIN ELEMENT"), headingLetter(elements + 2));
    page.SetItem(QStringLiteral("9-OPERATION"), finished(fields_.txtOperation, Route::Html));
}

/// What the abstract needs beside the items that are set already.
void HtmlComposer::setAbstractTitles(HTMLTemplate& page) const {
    page.SetItem(QStringLiteral("1-INVENTION TITLE_U"),
                 upperCase(fields_.txtInventionTitle.trimmedText()));
    page.SetItem(QStringLiteral("A/An"), properCaseWords(titleArticle(fields_)));
}

void HtmlComposer::fillDrawings(HTMLTemplate& page) const {
    const QString block = QStringLiteral("Disclosing Figure");
    const QString target = QStringLiteral("DF");
    const auto parse = [&](const QString& zero, const QString& image, const QString& caption,
                           const QString& separator) {
        page.SetItem(QStringLiteral("IMAGE OF DRAWING ZERO"), zero);
        page.SetItem(QStringLiteral("IMAGE OF DRAWING"), image);
        page.SetItem(QStringLiteral("FIG. N"), caption);
        page.Parse(target, block, separator);
    };
    page.SetBlock(PageBlock, block, target);
    if (!hasFigures(fields_))
        return parse(noFiguresSentence(), {}, {}, {});
    for (int i = 0; i < fields_.panelCount(FieldGroup::Figures); ++i)
        parse({}, imageTag(i), figureAbbreviation(i), LineBreak + LineBreak);
}

/// The path stands as it is, without any rule of addresses; both lengths are empty while the size
/// of the picture is not known.
QString HtmlComposer::imageTag(int figure) const {
    const QString& size = fields_.figureState(figure).sizeText;
    const QString separator = QStringLiteral(", ");
    return QStringLiteral("<img src=\"file:///") + figurePath(fields_, figure) +
           QStringLiteral("\" width =\"") + size.section(separator, 0, 0) +
           QStringLiteral("\" height =\"") + size.section(separator, 1, 1) + QStringLiteral("\"> ");
}

} // namespace quillford
