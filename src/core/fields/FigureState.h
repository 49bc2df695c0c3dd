#pragma once

#include <QString>

namespace quillford {

/// The two values that stand beside the fields of one figure. Neither is stored in a project.
struct FigureState {
    /// The path of the working copy of the picture: the `Tag` of `txtAttachFig(i)`. Empty until the
    /// project is opened from a file.
    QString workingCopy;
    /// The size for the Final Draft in pixels, "width, height": the `Tag` of `imgFigure(i)`. Empty
    /// while it is not known.
    QString sizeText;
};

} // namespace quillford
