#pragma once

#include "core/rules/GuidanceRules.h"
#include "platform/TextMeasure.h"
#include "verification/engine/VerificationState.h"

#include <QList>
#include <QString>

#include <optional>

namespace quillford {

/// The error report as it is drawn on screen: three bold heads with what is missing under each.
/// Lengths are logical pixels; a place is the upper left corner of a text.
struct ReportLine {
    int x;
    int y;
    QString text;
    TextWeight weight;
    /// The entry that the line belongs to, in the order of the report; none for heads.
    std::optional<qsizetype> entry;
};

struct Report {
    QList<ReportLine> lines;
    int height = 0;
    /// The cell behind each entry; of the one entry of numerals the first that is missing.
    QList<ElementCell> cells;
};

/// How high the report is shown at most; a longer one is scrolled.
inline constexpr int ReportViewHeight = 250;

/// Sets the report for a surface of this width.
[[nodiscard]] Report layOutReport(const MissingLists& lists, int width, const TextMeasure& measure);

} // namespace quillford
