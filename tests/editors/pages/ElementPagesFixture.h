#pragma once

#include "editors/index/ElementIndexPanel.h"
#include "editors/pages/PagesFixture.h"

namespace quillford {

/// The pages of Sections 5 to 7 and the Index of Elements.
class ElementPagesFixture : public PagesFixture {
protected:
    ElementPagesFixture();

    static constexpr int MainElementsTab = 4;
    static constexpr int SubElementsTab = 5;
    static constexpr int DescriptionsTab = 6;

    /// Chooses the number of Main Elements from its list.
    void clickCount(int count);
    void chooseCount(int count);

    /// The numerals and texts that the Index of Elements shows, from its upper end.
    [[nodiscard]] QString indexText() const;

private:
    void makeIndex();

protected:
    // Owned by the form, and by their panels.
    ElementIndexPanel* index;
    PageMainElements* mainElements;
    PageSubElements* subElements;
    PageDescriptions* descriptions;
};

} // namespace quillford
