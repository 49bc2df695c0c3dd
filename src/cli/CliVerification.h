#pragma once

#include "core/fields/ProjectFields.h"
#include "verification/engine/VerificationState.h"

namespace quillford {

/// Verifies a project without a form and without a wait, and gives what the run leaves: the number
/// of misses and the lists.
[[nodiscard]] VerificationState verifyProject(const ProjectFields& fields);

} // namespace quillford
