#pragma once

#include "persistence/compound/ByteStore.h"
#include "persistence/project/CodePage.h"
#include "persistence/project/PropertyValue.h"

namespace quillford {

/// The value in `bytes`, which begin with its type. A value of an unknown type, and one that needs
/// more bytes than there are, is opaque.
[[nodiscard]] PropertyValue decodeProperty(Bytes bytes, CodePage codePage);

/// The type and the bytes of `value`, up to a multiple of 4. A text ends at its first zero
/// character; it is written in the code page of the set where that is a narrow one that can hold
/// it, and in UTF-16 otherwise.
[[nodiscard]] QByteArray encodeProperty(const PropertyValue& value, CodePage codePage);

} // namespace quillford
