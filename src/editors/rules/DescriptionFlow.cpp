#include "editors/rules/DescriptionFlow.h"

#include <numeric>

namespace quillford {

namespace {

constexpr int OnePanelPageHeight = 852;

} // namespace

DescriptionPanelPlaces descriptionPanelPlaces(int detailQuestionHeight,
                                              int variationsQuestionHeight) {
    constexpr int GapAboveDetail = 8;
    constexpr int DetailToVariations = 73;
    constexpr int GapAboveVariations = 6;
    constexpr int DesignedDetail = 13;
    constexpr int DesignedVariations = 26;
    const int grown =
        detailQuestionHeight - DesignedDetail + variationsQuestionHeight - DesignedVariations;
    const int detailTop = DetailQuestionTop + detailQuestionHeight + GapAboveDetail;
    const int variationsTop = detailTop + DetailToVariations;
    return {detailTop, variationsTop, variationsTop + variationsQuestionHeight + GapAboveVariations,
            grown + 210, grown + 224};
}

DescriptionParts partsBelowOnePanel(int panelHeight, int connectionsHeight) {
    DescriptionParts parts{};
    parts.connectionsHeadingTop = panelHeight + 41;
    parts.connectionsTop = parts.connectionsHeadingTop + 21;
    parts.alternativeHeadingTop = parts.connectionsTop + connectionsHeight + 13;
    parts.alternativeTop = parts.alternativeHeadingTop + 20;
    parts.pageHeight = OnePanelPageHeight;
    return parts;
}

DescriptionParts partsBelowPanels(const QList<int>& panelHeights, int connectionsHeight) {
    constexpr int AbovePanels = 28;
    const int sum = std::accumulate(panelHeights.begin(), panelHeights.end(), AbovePanels);
    DescriptionParts parts{};
    parts.connectionsHeadingTop = sum + 15;
    parts.connectionsTop = parts.connectionsHeadingTop + 20;
    // Below a single panel the third part keeps its designed place.
    const bool isSingle = panelHeights.size() == 1;
    parts.alternativeHeadingTop = isSingle ? 477 : parts.connectionsTop + connectionsHeight + 11;
    parts.alternativeTop = isSingle ? 493 : parts.alternativeHeadingTop + 17;
    parts.pageHeight = isSingle ? OnePanelPageHeight : sum + OnePanelPageHeight;
    return parts;
}

} // namespace quillford
