#pragma once

#include <QList>

/// Where things stand on the page of Section 7. Panels grow with their wrapped questions, and the
/// parts below the panels are moved by hand. All lengths are logical pixels, tops within a panel
/// count from the panel, others from the page `picMElements`.
namespace quillford {

/// Where the parts of a description's panel stand.
struct DescriptionPanelPlaces {
    int detailTop;        ///< `txtMainElementNameDetail(i)`
    int variationsTop;    ///< its question, `lblMainElementVariations(i)`
    int variationsBoxTop; ///< `txtMainElementVariations(i)`
    int frameHeight;
    int panelHeight;

    friend bool operator==(const DescriptionPanelPlaces&, const DescriptionPanelPlaces&) = default;
};

/// The top of the first question in its panel.
inline constexpr int DetailQuestionTop = 24;

/// The places for questions of these heights, designed as 13 and 26: each line more makes the panel
/// taller by just that much.
[[nodiscard]] DescriptionPanelPlaces descriptionPanelPlaces(int detailQuestionHeight,
                                                            int variationsQuestionHeight);

/// Where the second and third part of the page stand.
struct DescriptionParts {
    int connectionsHeadingTop; ///< `lblTab7Part1(1)`
    int connectionsTop;        ///< `picDesMainAndSub`
    int alternativeHeadingTop; ///< `lblTab7Part1(2)`
    int alternativeTop;        ///< `picAlternativeFrm`
    int pageHeight;            ///< `picMElements`

    friend bool operator==(const DescriptionParts&, const DescriptionParts&) = default;
};

/// What `RefreshDescriptionCaptions` does with one panel. The steps between the parts differ from
/// those of `ReflowDescriptions`.
[[nodiscard]] DescriptionParts partsBelowOnePanel(int panelHeight, int connectionsHeight);

/// What `ReflowDescriptions` does below panels of these heights, one or more.
[[nodiscard]] DescriptionParts partsBelowPanels(const QList<int>& panelHeights,
                                                int connectionsHeight);

} // namespace quillford
