#pragma once

#include <QString>

/// The captions of Sections 5 and 6. Main Elements are counted from 0; the numerals beside their
/// fields are `referenceLabel`s. Lengths are logical pixels.
namespace quillford {

/// "First Main Element": the caption on the frame of a panel, `lblMainElementName(i)` and
/// `lblMainElementNums(i)`.
[[nodiscard]] QString mainElementCaption(int element);

/// The caption of `lblElementDes(i)`. The first panel's is spelt in lower case, those of the
/// others are not.
[[nodiscard]] QString elementDescriptionCaption(int element);

/// "First Main Element (and Reference Number)".
[[nodiscard]] QString referenceNumberCaption(int element);

/// "Sub-Elements for the First Main Element".
[[nodiscard]] QString subElementsCaption(int element);

/// The left edge of `imgElementDesValidate(i)`, behind the end of its label.
[[nodiscard]] int elementDescriptionStarLeft(int labelLeft, int labelWidth);

/// The left edge of `imgMainElementValidate(i)`: a numeral of three digits pushes it to the right.
[[nodiscard]] int mainElementStarLeft(int element);

/// The captions on frames: their left edge, and how much wider than its text a caption is.
inline constexpr int FrameCaptionLeft = 8;
inline constexpr int FrameCaptionExtraWidth = 6;

/// The reminder of Section 6, `lblIndexElem`.
[[nodiscard]] QString labelElementsReminder();

} // namespace quillford
