#pragma once

#include "editors/binding/BoundFields.h"
#include "editors/columns/PanelColumn.h"

namespace quillford {

/// From now on the column follows the Tab key through the fields of a group, which stand directly
/// on its panels. Ends with the column. `bound` outlives the column.
void followTab(BoundFields& bound, PanelColumn& column, FieldGroup group);

} // namespace quillford
