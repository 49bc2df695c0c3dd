#pragma once

#include "core/fields/ProjectFields.h"

#include <QStringList>

namespace quillford {

/// The names that the project itself gives: those of its Main Elements, Sub-Elements and inventors.
/// Empty ones are left out. Never fails.
[[nodiscard]] QStringList projectNames(const ProjectFields& fields);

} // namespace quillford
