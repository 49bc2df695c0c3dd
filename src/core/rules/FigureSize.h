#pragma once

#include "core/fields/ProjectFields.h"
#include "platform/PictureReader.h"

#include <QSize>

namespace quillford {

/// The size in pixels at which the Final Draft shows a picture of `pixels`, fitted into 660 by 810
/// and never enlarged. A picture under 660 wide and at least 810 tall comes out squeezed: its width
/// is scaled as if the height were 810, and the height is 660. Fractions are rounded half to even.
[[nodiscard]] QSize computeFigureSize(QSize pixels);

/// That size as it stands beside a figure: "660, 495".
[[nodiscard]] QString figureSizeText(QSize pixels);

/// Puts the draft size of every figure with an attached picture beside its field, as "width,
/// height". The picture is the file named in `txtAttachFig(i)`, or the working copy where that file
/// is gone; the size of one that cannot be read is emptied. A figure without an attached picture
/// keeps the size it had.
void measureFigures(ProjectFields& fields, PictureReader& pictures);

/// Puts the draft size of the picture in the file `path` beside figure `index`; empties it when the
/// picture cannot be read.
void measureFigure(ProjectFields& fields, int index, const QString& path, PictureReader& pictures);

/// The file from which figure `index` is drawn: the one named in `txtAttachFig(i)`, as the name
/// stands, when it is not blank and such a file (no folder) exists; otherwise the working copy's
/// path, whether that exists or not.
[[nodiscard]] QString figurePath(const ProjectFields& fields, int index);

} // namespace quillford
