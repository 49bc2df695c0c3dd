#pragma once

#include "core/fields/FieldTable.h"

namespace quillford {

/// The columns of panels in the sections, as seen by whoever is no section: the navigation, filing
/// and a new project. Nothing here fails.
///
/// A layout makes the project have `count` panels, through `ProjectFields::setPanelCount`, and the
/// column on screen with it, scrolled to its top. Fields of new panels are empty, the texts of
/// dropped panels are gone. The count field is not written, and read by `LayoutFigures` alone: no
/// figure is one panel that is hidden.
class EditorColumns {
public:
    virtual ~EditorColumns() = default;

    virtual void LayoutInventors(int count) = 0;
    virtual void LayoutObjects(int count) = 0;
    virtual void LayoutFigures(int count) = 0;
    virtual void LayoutMainElements(int count) = 0;
    virtual void LayoutSubElements(int count) = 0;
    virtual void LayoutDescriptions(int count) = 0;

    /// Writes the sentences over the objects anew and places the objects below each other.
    virtual void RefreshObjectSentences() = 0;

    /// Writes the captions of Section 7 from the names of the Main Elements, with a layout before
    /// it where the panels differ from the count field, and scrolls the blocks of Section 6 to
    /// their top.
    virtual void RefreshDescriptionCaptions() = 0;

    /// Scrolls the blocks of Section 6 to their top and puts each directly under the one before.
    virtual void stackSubElements() = 0;

    /// Scrolls the page of Section 7 to its top.
    virtual void scrollDescriptionsToTop() = 0;

    /// Scrolls the column of a field of a panel until the field is in view, as the Tab key does.
    virtual void bringIntoView(FieldId field, int index) = 0;

    /// Shows the picture of a figure, as it lies in its working copy, in the figure's panel, and
    /// hides `lblNoFigure(index)`. A picture that cannot be read leaves the panel without one.
    virtual void showPicture(int index) = 0;

    /// Takes the picture away from the panel of a figure, `imgFigure(index)`, and shows
    /// `lblNoFigure(index)` in its place. The figure's fields and state stay.
    virtual void removePicture(int index) = 0;
};

} // namespace quillford
