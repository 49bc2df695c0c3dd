#pragma once

#include "editors/binding/BoundFields.h"
#include "editors/columns/PanelColumn.h"

namespace quillford {

/// From now on the column follows the Tab key through those fields on its panels for which the
/// rules say so. They stand directly on the panels. Ends with the column. `bound` outlives the
/// column.
void followTab(BoundFields& bound, PanelColumn& column);

} // namespace quillford
