#pragma once

#include "core/fields/ProjectFields.h"
#include "core/fields/ProjectState.h"

namespace quillford {

/// What is read from one file and written to one: the fields, and the state that is stored with
/// them.
struct Project {
    ProjectFields fields;
    ProjectState state;
};

} // namespace quillford
