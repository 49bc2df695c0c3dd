#pragma once

#include <QRect>
#include <QString>

namespace quillford {

/// The pictures on the panels of figures. Figures are counted from 0, places are logical pixels.
/// Nothing here fails.
class FigureView {
public:
    virtual ~FigureView() = default;

    /// Shows the panels with their scroll bar, or hides both.
    virtual void showFigures(bool on) = 0;

    /// Shows the picture in the file `path`, stretched over `place` within the preview's square.
    virtual void showPicture(int figure, const QString& path, const QRect& place) = 0;

    /// Takes the picture away; `lblNoFigure(figure)` stays as it is.
    virtual void clearPicture(int figure) = 0;

    /// Shows or hides `lblNoFigure(figure)`.
    virtual void showNoFigure(int figure, bool on) = 0;
};

} // namespace quillford
