#pragma once

#include "persistence/compound/ByteStore.h"
#include "persistence/project/PropertySet.h"

namespace quillford {

/// Reads a property-set stream. Nothing in the bytes is trusted: every place, size and count is
/// held against the bytes that there are before anything is made from it, and no byte is kept
/// twice. Raises 0x80030109 with the fault and its offset for a damaged stream; the last section
/// may say up to 3 bytes more than there are. A damaged value is told when it is asked for.
[[nodiscard]] PropertySet readPropertySet(Bytes bytes);

} // namespace quillford
