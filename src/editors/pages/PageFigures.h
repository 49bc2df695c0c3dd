#pragma once

#include "core/wizard/FocusOrder.h"
#include "editors/columns/PanelColumn.h"
#include "editors/panels/FigurePanel.h"
#include "editors/rules/FigureAttachment.h"
#include "platform/PictureLoader.h"

namespace quillford {

/// Section 4, Figures: a count, and a panel for each figure. With no figure the first panel stays,
/// hidden.
class PageFigures final : public QObject, private FigureView {
    Q_OBJECT

public:
    /// What the page asks of the desktop. Nothing is owned; all outlives the page.
    struct Desktop {
        PictureReader& sizes;
        PictureLoader& pictures;
        UserPrompts& prompts;
    };

    /// Fills `panel`, which owns the page, binds its fields and makes the panels that the project
    /// has. All other arguments outlive the page.
    PageFigures(QWidget& panel, ProjectFields& fields, BoundFields& bound, FocusOrder& order,
                const Desktop& desktop);

    /// Makes `count` panels stand, scrolled to their top; one stays for none. Fields of new panels
    /// are empty.
    void LayoutFigures(int count);

    /// Shows the picture of a figure from its working copy; no picture when that cannot be decoded.
    void showPicture(int index);

    /// Takes the picture away from a figure's panel, and shows `lblNoFigure(index)`.
    void removePicture(int index);

    /// Writes the sentence about a figure's view anew.
    void showFigureSentence(int figure);

    [[nodiscard]] PanelColumn& column() { return *column_; }

private:
    void showFigures(bool on) override;
    void showPicture(int figure, const QString& path, const QRect& place) override;
    void clearPicture(int figure) override;
    void showNoFigure(int figure, bool on) override;

    [[nodiscard]] FigurePanel& figurePanel(int figure) const;
    [[nodiscard]] QWidget* makePanel(int figure);
    void chosen(const FieldPlace& place);

    ProjectFields& fields_;
    BoundFields& bound_;
    FocusOrder& order_;
    Desktop desktop_;
    FigureAttachment attachment_;
    QWidget* view_;
    QScrollBar* bar_;
    PanelColumn* column_;
};

} // namespace quillford
