#include "draft/compose/WordFilling.h"

#include "base/Text.h"
#include "core/rules/FigureSize.h"
#include "draft/compose/DraftValues.h"
#include "draft/compose/IndexItems.h"
#include "draft/language/Capitals.h"

namespace quillford {

namespace {

const QString LineEnd = QStringLiteral("\r\n");

/// The template has no first-line indent where a text is filled in.
QString indented(const QString& text) {
    return u'\t' + text;
}

QString paragraphs(const Field& field) {
    return indented(finished(field, Route::Word));
}

} // namespace

WordFilling::WordFilling(const ProjectFields& fields, WordTemplate& document)
    : fields_(fields), document_(document), items_(document) {}

void WordFilling::fill() {
    fillHead();
    fillInventors();
    fillSummary();
    fillObjects();
    fillFigureDescriptions();
    fillMainElements();
    fillClosing();
    fillAbstract();
    fillDrawings();
    fillIndex();
    items_.finish();
    document_.setHeader(fields_.txtFileNo.trimmedText());
}

void WordFilling::set(const char16_t* name, const QString& value) {
    items_.SetItem(QString::fromUtf16(name), value);
}

/// The title has eleven marks and twelve calls: which mark a call takes plays no part as long as
/// there are enough of them, and the last finds none.
void WordFilling::setTitle() {
    set(u"1-INVENTION TITLE", lowerTitle(fields_));
}

void WordFilling::fillHead() {
    setTitle();
    document_.setHeader(fields_.txtFileNo.trimmedText());
    set(u"I/WE", inventorPronoun(fields_));
}

void WordFilling::fillInventors() {
    const QString block = QStringLiteral("Disclosing Inventor Name");
    document_.DuplicateBlock(block, inventorCount(fields_) - 1, QStringLiteral(","));
    for (int i = 0; i < inventorCount(fields_); ++i) {
        set(u"2-AND", inventorConjunction(fields_, i));
        set(u"2-INVENTOR", inventorName(fields_, i));
        set(u"2-COUNTRY", inventorCountry(fields_, i));
    }
    document_.RemoveBlockTag(block);
}

void WordFilling::fillSummary() {
    setTitle();
    set(u"1-INVENTION TITLE-U", headingTitle(fields_, Route::Word));
    set(u"1-GENERIC-PF", genericPlural(fields_));
    set(u"a/an", titleArticle(fields_));
    setTitle();
    set(u"3-PURPOSE", closedText(fields_.txtPurpose));
    set(u"a-an", genericArticle(fields_));
    set(u"1-GENERIC-SG", genericSingular(fields_));
    setTitle();
    set(u"5-GENERAL", closedText(fields_.txtMainElement));
    set(u"a/an-pur", titleArticle(fields_));
    set(u"1-INVENTION TITLE-pur", lowerTitle(fields_));
    setTitle();
    set(u"3-PURPOSE-pur", closedText(fields_.txtPurpose));
}

/// The tags leave an empty line behind a single object, where they would separate several.
void WordFilling::fillObjects() {
    const QString block = QStringLiteral("Disclosing Object");
    const int objects = fields_.panelCount(FieldGroup::Objects);
    document_.DuplicateBlock(block, objects - 1, {});
    if (objects < 1)
        set(u"object", {});
    for (int i = 0; i < objects; ++i)
        set(u"object", indented(objectSentence(fields_, i)));
    setTitle();
    document_.RemoveBlockTag(block);
    if (objects == 1)
        document_.DeleteLine();
}

void WordFilling::fillFigureDescriptions() {
    const QString block = QStringLiteral("Disclosing Figure description");
    const auto describe = [&](const QString& head, const QString& sentence, const QString& detail) {
        set(u"FIGURE I:", head);
        items_.SetItem(figureSentenceItem(), sentence);
        set(u"4-FIGURE DESCRIPTION", detail);
    };
    const int figures = fields_.panelCount(FieldGroup::Figures);
    setTitle();
    document_.DuplicateBlock(block, figures - 1, {});
    if (!hasFigures(fields_))
        describe(noFiguresSentence(), {}, {});
    for (int i = 0; hasFigures(fields_) && i < figures; ++i)
        describe(figureHeading(i), figureSentence(fields_, i),
                 finished(fields_.txtFigureDetail(i), Route::Word));
    document_.RemoveBlockTag(block);
}

void WordFilling::fillMainElements() {
    const QString block = QStringLiteral("Disclosing Main Element");
    const int elements = fields_.panelCount(FieldGroup::MainElements);
    requireDescriptions(fields_);
    setTitle();
    set(u"5-GENERAL-DE", closedText(fields_.txtMainElement));
    document_.DuplicateBlock(block, elements - 1, {});
    for (int i = 0; i < elements; ++i) {
        set(u"5-MAIN ELEMENT", elementName(fields_, i));
        set(u"5-MAIN DESCRIPTION", paragraphs(fields_.txtElementDes(i)));
        set(u"7-DETAILED", paragraphs(fields_.txtMainElementNameDetail(i)));
        set(u"7-VARIATIONS", paragraphs(fields_.txtMainElementVariations(i)));
    }
    setTitle();
    document_.RemoveBlockTag(block);
}

void WordFilling::fillClosing() {
    set(u"7-INTERCONNECTIONS", paragraphs(fields_.txtDesConnections));
    setTitle();
    set(u"7-ALTERNATIVE EMBODIMENTS", indented(alternativeEmbodiments(fields_, Route::Word)));
    set(u"9-OPERATION", paragraphs(fields_.txtOperation));
    setTitle();
}

void WordFilling::fillAbstract() {
    set(u"A/An", properCaseWords(titleArticle(fields_)));
    set(u"3-PURPOSE", closedText(fields_.txtPurpose));
    set(u"5-GENERAL", closedText(fields_.txtMainElement));
    setTitle();
    set(u"1-INVENTION TITLE-UP", upperCase(fields_.txtInventionTitle.trimmedText()));
}

void WordFilling::fillDrawings() {
    const QString block = QStringLiteral("Disclosing Figure");
    const QString image = QStringLiteral("IMAGE OF DRAWING");
    if (!hasFigures(fields_)) {
        set(u"IMAGE OF DRAWING ZERO", noFiguresSentence());
        items_.SetItem(image, {});
        set(u"FIG. N", {});
        return document_.RemoveBlockTag(block);
    }
    const int figures = fields_.panelCount(FieldGroup::Figures);
    set(u"IMAGE OF DRAWING ZERO", {});
    document_.DuplicateBlock(block, figures - 1, LineEnd + LineEnd);
    for (int i = 0; i < figures; ++i) {
        document_.SetFigure(image, figurePath(fields_, i));
        set(u"FIG. N", figureAbbreviation(i));
    }
    document_.RemoveBlockTag(block);
}

/// The copies follow the tables of Sub-Elements, the lines the Main Elements; marks that are left
/// when these differ in number stay in the document.
void WordFilling::fillIndex() {
    const QString block = QStringLiteral("Disclosing Index");
    document_.DuplicateBlock(block, fields_.panelCount(FieldGroup::SubElements) - 1, LineEnd);
    for (int i = 0; i < fields_.panelCount(FieldGroup::MainElements); ++i)
        setIndexItems(items_, fields_, i, Route::Word);
    document_.RemoveBlockTag(block);
}

} // namespace quillford
