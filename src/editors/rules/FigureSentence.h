#pragma once

#include <QRect>
#include <QSize>
#include <QString>

/// What stands around a figure's fields in Section 4: captions, and the place of the preview.
/// Figures are counted from 0, lengths are logical pixels.
namespace quillford {

/// The captions of a figure's panel: "Figure 1", "Attach Figure 1 Image File" and "Detailed
/// Description of Figure 1".
[[nodiscard]] QString figureCaption(int figure);
[[nodiscard]] QString attachFigureCaption(int figure);
[[nodiscard]] QString figureDetailCaption(int figure);

/// The head of the sentence that names the view: "Figure 1 is a" or "Figure 1 is an", by the first
/// letter of the view alone.
[[nodiscard]] QString figureSentence(int figure, const QString& view);

/// Where `cboFigureType(i)` begins behind its label, which is as wide as its text.
[[nodiscard]] int figureTypeLeft(int labelLeft, int labelWidth);

/// The side of the square `shpFigureContain(0)`, into which every figure's preview is fitted.
inline constexpr int FigureBoxSide = 128;

/// The place of the preview of a picture of `pixels` in that square: never enlarged, centred.
/// Fractions of a size are rounded half to even.
[[nodiscard]] QRect figurePreviewPlace(QSize pixels);

} // namespace quillford
