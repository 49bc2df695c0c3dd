#include "draft/compose/IndexItems.h"

#include "core/rules/ReferenceNumerals.h"
#include "draft/language/Capitals.h"

namespace quillford {

namespace {

QString blanksBehind(const QString& numeral) {
    const bool isShort = numeral.size() < 4;
    return isShort ? QStringLiteral("   ") : QStringLiteral("  ");
}

/// The Word route always puts three blanks, and a line end before every line but the first.
QString lineFor(const QString& numeral, const QString& words, Route route) {
    if (route == Route::Html)
        return numeral + blanksBehind(numeral) + words;
    const QString lineEnd = numeral == u"10:" ? QString() : QStringLiteral("\r\n");
    return lineEnd + numeral + QStringLiteral("   ") + words;
}

} // namespace

void setIndexItem(TemplateItems& items, const Field& cell, const QString& numeral, int itemNumber,
                  Route route) {
    const QString line = cell.isFilled()
                             ? lineFor(numeral, properCaseIndexEntry(cell.text()) + u' ', route)
                             : QString();
    items.SetItem(QStringLiteral("Element-%1").arg(itemNumber), line);
}

void setIndexItems(TemplateItems& items, const ProjectFields& fields, int element, Route route) {
    setIndexItem(items, fields.txtElementName(element), referenceLabel(element), 1, route);
    if (element >= fields.panelCount(FieldGroup::SubElements))
        return;
    for (int part = 1; part <= SubElementCount; ++part)
        setIndexItem(items, fields.at(subElementField(part), element),
                     referenceLabel(element, part), part + 1, route);
}

void fillIndexBlock(HTMLTemplate& page, const QString& parent, const ProjectFields& fields) {
    const QString block = QStringLiteral("Disclosing Index");
    const QString target = QStringLiteral("DI");
    page.SetBlock(parent, block, target);
    for (int i = 0; i < fields.panelCount(FieldGroup::MainElements); ++i) {
        setIndexItems(page, fields, i, Route::Html);
        page.Parse(target, block, QStringLiteral("<br>"));
    }
}

} // namespace quillford
