#pragma once

#include "core/fields/ProjectFields.h"
#include "editors/rules/FigureView.h"
#include "platform/PictureReader.h"
#include "platform/UserPrompts.h"

namespace quillford {

/// Attaches pictures to figures and takes them away again. A picture is not copied anywhere: the
/// project holds its path, and a save reads the file. What cannot be done ends silently where it
/// stands.
class FigureAttachment {
public:
    /// Owns none of its arguments; all outlive it.
    FigureAttachment(ProjectFields& fields, PictureReader& pictures, UserPrompts& prompts,
                     FigureView& view);

    /// Asks for a file, and attaches it. A file of another kind, or one too large, is refused in a
    /// box. One that cannot be decoded is attached without a preview, and the old preview stays.
    void imgBrowse_Click(int figure);

    /// Takes the picture of a figure away; its view and its description stay.
    void imgRemove_Click(int figure);

    /// A number of figures was chosen. No figure: the panels are hidden and the first is emptied
    /// but for its view. The layout of the panels comes later.
    void cboFiguresNum_Click();

    /// A view was chosen. Tells that a heading is none, and leaves it as it is.
    void cboFigureType_Click(int figure);

    /// Shows the picture of a figure that was read with its project, from its working copy.
    void showWorkingCopy(int figure);

    /// Shows the picture in a file, and keeps the size that it will have in the Final Draft. Does
    /// nothing when the file cannot be decoded.
    void fitFigurePreview(int figure, const QString& path);

private:
    void attach(int figure, const QString& path);
    void detach(int figure);
    void refuseType();
    void refuseSize(int figure);
    void tell(const QString& title, const QString& text);

    ProjectFields& fields_;
    PictureReader& pictures_;
    UserPrompts& prompts_;
    FigureView& view_;
};

} // namespace quillford
