#include "EditorPages.h"

#include "shell/WelcomePage.h"

namespace quillford {

EditorPages::EditorPages() : form_(QString(), order_), bound_(fields_), columns_(makePages(), bound_) {
    form_.welcome().hide();
    form_.show();
}

EditorPages::~EditorPages() = default;

SectionColumns::Pages EditorPages::makePages() {
    SectionColumns::Pages pages{};
    pages.inventors = new PageInventors(form_.panel(1), fields_, bound_, order_);
    pages.objects = new PageObjects(form_.panel(2), fields_, bound_, order_);
    pages.figures =
        new PageFigures(form_.panel(3), fields_, bound_, order_, {pictures_, pictures_, prompts_});
    pages.mainElements = new PageMainElements(form_.panel(4), fields_, bound_, order_, *this);
    pages.subElements = new PageSubElements(form_.panel(5), fields_, bound_, order_);
    pages.descriptions =
        new PageDescriptions(form_.panel(6), fields_, bound_, order_, measure_,
                             [page = pages.subElements] { page->stackSubElements(); });
    return pages;
}

} // namespace quillford
