#pragma once

#include "platform/TextMeasure.h"

#include <QString>

/// The captions of Section 7, which quote the names of the Main Elements. Elements are counted from
/// 0. A name of blanks counts as none.
namespace quillford {

/// At which width the questions and their star labels wrap, in logical pixels.
inline constexpr int QuestionWidth = 343;

/// The caption on the frame of a panel, `lblDesOfMainElement(i)`: "Hinge (1 of 3 Main Elements)".
[[nodiscard]] QString descriptionFrameCaption(int element, int count, const QString& name,
                                              const TextMeasure& measure);

/// The first question, `lblMainElementNameDetail(i)`.
[[nodiscard]] QString detailQuestion(int element, const QString& name, const TextMeasure& measure);

/// The first question with the star behind it, `lblDesElementNameValidate(i)`.
[[nodiscard]] QString detailQuestionStar(const QString& question);

/// The second question, `lblMainElementVariations(i)`.
[[nodiscard]] QString variationsQuestion(int element, const QString& name,
                                         const TextMeasure& measure);

} // namespace quillford
