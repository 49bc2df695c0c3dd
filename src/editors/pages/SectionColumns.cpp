#include "editors/pages/SectionColumns.h"

#include "editors/rules/FollowTab.h"

namespace quillford {

void SectionColumns::scroll(const PanelScroll& scroll) {
    column(static_cast<EditorColumn>(scroll.scrollIndex))
        .ScrollPanelTo(scroll.row, scroll.atEnd, 0);
}

void SectionColumns::bringIntoView(FieldId field, int index) {
    const auto following = columnFollowing(field);
    const QWidget* control = bound_.control({field, index});
    if (following && control)
        column(*following).FollowTab(*control, index);
}

PanelColumn& SectionColumns::column(EditorColumn column) const {
    switch (column) {
    case EditorColumn::Inventors:
        return pages_.inventors->column();
    case EditorColumn::Objects:
        return pages_.objects->column();
    case EditorColumn::Figures:
        return pages_.figures->column();
    case EditorColumn::MainElements:
        return pages_.mainElements->column();
    case EditorColumn::SubElements:
        return pages_.subElements->column();
    case EditorColumn::Descriptions:
        break;
    }
    return pages_.descriptions->column();
}

} // namespace quillford
