#pragma once

#include "platform/TextMeasure.h"

#include <QString>

namespace quillford {

/// The caption of `lblTitleInvention`: the file number and the title, blanks at their ends set
/// aside, in brackets with ": " between them, cut at the width of the label; one of them alone when
/// the other is blank, and nothing when both are. A ":" within a text becomes ": " only where both
/// texts are shown.
[[nodiscard]] QString titleInventionCaption(const QString& fileNo, const QString& inventionTitle,
                                            const TextMeasure& measure);

} // namespace quillford
