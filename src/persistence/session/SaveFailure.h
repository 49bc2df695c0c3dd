#pragma once

#include "base/Error.h"

#include <QString>

namespace quillford {

/// Why a save failed, in the few words that the line of the save state has room for: "disk full",
/// "file in use". A failure without such words gives its own description.
[[nodiscard]] QString briefReason(const Error& failure);

} // namespace quillford
