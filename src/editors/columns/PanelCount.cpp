#include "editors/columns/PanelCount.h"

#include <algorithm>

namespace quillford {

void setPanelCount(PanelColumn& column, ProjectFields& fields, FieldGroup group, int count) {
    // One panel stays, whatever the count.
    column.dropPanelsFrom(std::max(count, 1));
    fields.setPanelCount(group, count);
    column.makePanelsUpTo(fields.panelCount(group));
}

} // namespace quillford
