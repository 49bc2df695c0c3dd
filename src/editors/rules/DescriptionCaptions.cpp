#include "editors/rules/DescriptionCaptions.h"

#include "base/Text.h"
#include "core/text/LineBreaks.h"
#include "draft/language/Capitals.h"

namespace quillford {

namespace {

/// A question about an element, cut at `width`. The placeholder is short enough to stand as it is.
QString question(const QString& about, int element, const QString& name, double width,
                 const TextMeasure& measure) {
    const QStringView trimmed = trimBlanks(name);
    if (trimmed.isEmpty())
        return about + QStringLiteral("[MAIN ELEMENT %1 NAME]").arg(element + 1);
    return fitCaptionToWidth(about + properCaseWords(trimmed), width, false, measure);
}

} // namespace

QString descriptionFrameCaption(int element, int count, const QString& name,
                                const TextMeasure& measure) {
    constexpr double NameWidth = 200;
    const QString trimmed = trimBlanks(name).toString();
    const QString head =
        trimmed.isEmpty() ? QStringLiteral("[Main Element Name %1]").arg(element + 1)
                          : properCaseWords(fitCaptionToWidth(trimmed, NameWidth, false, measure));
    return head + QStringLiteral(" (%1 of %2 Main Elements)").arg(element + 1).arg(count);
}

QString detailQuestion(int element, const QString& name, const TextMeasure& measure) {
    constexpr double Width = 315;
    return question(QStringLiteral("Detailed Description of the "), element, name, Width, measure);
}

QString detailQuestionStar(const QString& question) {
    return question + QStringLiteral("  *");
}

QString variationsQuestion(int element, const QString& name, const TextMeasure& measure) {
    constexpr double Width = 330;
    return question(
        QStringLiteral("Describe All Possible Structural and Functional Variations of the "),
        element, name, Width, measure);
}

} // namespace quillford
