#pragma once

#include "core/fields/ProjectFields.h"
#include "core/fields/ProjectState.h"

namespace quillford {

/// Sets `saveFlag` at the first field that is marked as changed, and answers it. A flag that is set
/// already stays: a text that was changed and changed back still counts as changed.
bool GetSaveFlag(const ProjectFields& fields, ProjectState& state);

/// Takes the changed mark from every field and clears `saveFlag`.
void ResetSaveFlag(ProjectFields& fields, ProjectState& state);

/// Takes the changed mark from every field and leaves `saveFlag` as it is.
void clearChangedMarks(ProjectFields& fields);

} // namespace quillford
