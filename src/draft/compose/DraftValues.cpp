#include "draft/compose/DraftValues.h"

#include "base/Error.h"
#include "base/Text.h"
#include "draft/language/Articles.h"
#include "draft/language/Capitals.h"
#include "draft/language/Plurals.h"
#include "draft/language/Sentences.h"

#include <algorithm>

namespace quillford {

QString inventorPronoun(const ProjectFields& fields) {
    return fields.cboInventorsNum.number() > 1 ? QStringLiteral("WE") : QStringLiteral("I");
}

int inventorCount(const ProjectFields& fields) {
    return std::min(fields.cboInventorsNum.number(), fields.txtNameStep2.count());
}

QString inventorConjunction(const ProjectFields& fields, int inventor) {
    const int count = fields.cboInventorsNum.number();
    return count > 1 && inventor == count - 1 ? QStringLiteral("and ") : QString();
}

QString inventorName(const ProjectFields& fields, int inventor) {
    QString name = properCaseWords(fields.txtNameStep2(inventor).trimmedText());
    if (fields.txtMIStep2(inventor).isFilled())
        name += u' ' + properCaseWords(lowerWithPeriod(fields.txtMIStep2(inventor).trimmedText()));
    return name + u' ' + properCaseWords(fields.txtLastStep2(inventor).trimmedText());
}

QString inventorCountry(const ProjectFields& fields, int inventor) {
    return citizenshipText(fields.cboCitizenshipStep2(inventor).text());
}

QString lowerTitle(const ProjectFields& fields) {
    return lowerCase(fields.txtInventionTitle.trimmedText());
}

QString headingTitle(const ProjectFields& fields, Route route) {
    return properCaseWords(
        formatParagraphs(fields.txtInventionTitle.trimmedText(), route, Lines::RunTogether));
}

QString titleArticle(const ProjectFields& fields) {
    return isVowelInitial(fields.txtInventionTitle.trimmedText());
}

QString genericSingular(const ProjectFields& fields) {
    return lowerCase(fields.txtTechTitle.trimmedText());
}

QString genericPlural(const ProjectFields& fields) {
    const QString singular = genericSingular(fields);
    return singular.isEmpty() ? singular : pluralize(singular);
}

QString genericArticle(const ProjectFields& fields) {
    return isVowelInitial(fields.txtTechTitle.trimmedText());
}

QString objectSentence(const ProjectFields& fields, int object) {
    return QStringLiteral("Another object is to provide ") + titleArticle(fields) + u' ' +
           properCaseWords(fields.txtInventionTitle.trimmedText()) + QStringLiteral(" that ") +
           withPeriod(fields.txtObject(object).text());
}

QString figureHeading(int figure) {
    return QStringLiteral("FIGURE %1:").arg(figure + 1);
}

QString figureAbbreviation(int figure) {
    return QStringLiteral("FIG. %1").arg(figure + 1);
}

QString figureSentence(const ProjectFields& fields, int figure) {
    const QString view = fields.cboFigureType(figure).trimmedText();
    return QStringLiteral("Figure ") + QString::number(figure + 1) + QStringLiteral(" is ") +
           isVowelInitial(view) + u' ' + view + QStringLiteral(" of the present invention.");
}

QString figureSentenceItem() {
    return QStringLiteral("Figure J is a FIGURE-TYPE of the present invention.");
}

bool hasFigures(const ProjectFields& fields) {
    return fields.cboFiguresNum.number() != 0;
}

void requireDescriptions(const ProjectFields& fields) {
    constexpr int MissingPanel = 340; // the runtime's number for a control that does not exist
    const int described = fields.panelCount(FieldGroup::Descriptions);
    if (described < fields.panelCount(FieldGroup::MainElements))
        throw Error(MissingPanel,
                    QStringLiteral("Main Element %1 has no description").arg(described + 1));
}

QString elementName(const ProjectFields& fields, int element) {
    return properCaseWords(fields.txtElementName(element).trimmedText());
}

QString closedText(const Field& field) {
    return withPeriod(field.text());
}

QString finished(const Field& field, Route route) {
    return upperFirstLetter(formatParagraphs(field.trimmedText(), route, Lines::AsParagraphs));
}

QString alternativeEmbodiments(const ProjectFields& fields, Route route) {
    if (fields.txtDesAlterative.text().isEmpty())
        return QStringLiteral("There are no alternative variations at this time.");
    return finished(fields.txtDesAlterative, route);
}

QString headingLetter(int heading) {
    return QString(QChar(u'B' + heading));
}

QString noFiguresSentence() {
    return QStringLiteral("THERE ARE NO FIGURES IN THIS PROVISIONAL APPLICATION.");
}

} // namespace quillford
