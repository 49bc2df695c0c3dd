#pragma once

#include "core/fields/ProjectFields.h"
#include "editors/columns/PanelColumn.h"

namespace quillford {

/// Makes the project have `count` panels of a group, through `ProjectFields::setPanelCount`, and
/// its column on screen as many. The controls of a surplus panel go before its fields, and those of
/// a missing one come after its fields, so that no control is ever without its field. The column
/// still has to be laid out.
void setPanelCount(PanelColumn& column, ProjectFields& fields, FieldGroup group, int count);

} // namespace quillford
