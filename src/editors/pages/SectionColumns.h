#pragma once

#include "core/rules/GuidanceRules.h"
#include "core/wizard/EditorColumns.h"
#include "editors/binding/BoundFields.h"
#include "editors/columns/PanelColumn.h"
#include "editors/pages/PageDescriptions.h"
#include "editors/pages/PageFigures.h"
#include "editors/pages/PageInventors.h"
#include "editors/pages/PageMainElements.h"
#include "editors/pages/PageObjects.h"
#include "editors/pages/PageSubElements.h"

namespace quillford {

/// The columns of panels of all sections, each handed to the page that shows it.
class SectionColumns : public EditorColumns {
public:
    /// The pages of Sections 2 to 7. They are not owned and outlive the columns.
    struct Pages {
        PageInventors* inventors;
        PageObjects* objects;
        PageFigures* figures;
        PageMainElements* mainElements;
        PageSubElements* subElements;
        PageDescriptions* descriptions;
    };

    /// `bound` outlives the columns too.
    SectionColumns(const Pages& pages, const BoundFields& bound) : pages_(pages), bound_(bound) {}

    void LayoutInventors(int count) override { pages_.inventors->LayoutInventors(count); }

    void LayoutObjects(int count) override { pages_.objects->LayoutObjects(count); }

    void LayoutFigures(int count) override { pages_.figures->LayoutFigures(count); }

    void LayoutMainElements(int count) override { pages_.mainElements->LayoutMainElements(count); }

    void LayoutSubElements(int count) override { pages_.subElements->LayoutSubElements(count); }

    void LayoutDescriptions(int count) override { pages_.descriptions->LayoutDescriptions(count); }

    void RefreshObjectSentences() override { pages_.objects->RefreshObjectSentences(); }

    void RefreshDescriptionCaptions() override {
        pages_.descriptions->RefreshDescriptionCaptions();
    }

    void stackSubElements() override { pages_.subElements->stackSubElements(); }

    void scrollDescriptionsToTop() override { pages_.descriptions->scrollDescriptionsToTop(); }

    void bringIntoView(FieldId field, int index) override;

    void showPicture(int index) override { pages_.figures->showPicture(index); }

    void removePicture(int index) override { pages_.figures->removePicture(index); }

    /// Writes the sentence about a figure's view anew.
    void showFigureSentence(int figure) { pages_.figures->showFigureSentence(figure); }

    /// Brings a panel into view: `ScrollPanelTo` of the column with that scroll bar.
    void scroll(const PanelScroll& scroll);

private:
    [[nodiscard]] PanelColumn& column(EditorColumn column) const;

    Pages pages_;
    const BoundFields& bound_;
};

} // namespace quillford
