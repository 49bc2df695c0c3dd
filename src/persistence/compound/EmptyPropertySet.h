#pragma once

#include "persistence/compound/ClassId.h"

#include <QByteArray>

#include <span>

namespace quillford {

/// The bytes of a property-set stream with one section for each of `formats`, none of which holds a
/// property but the code page:
///
///     0   FE FF, version 0       4   system       8   class, zero
///     24  number of sections     28  for each: its format, 16 bytes, and its place, 4 bytes
///     section: size, number of properties, then for each its identifier and its place; values
///
/// The code page is that of narrow text (1252) when `ansi` is set, else that of UTF-16 (1200).
[[nodiscard]] QByteArray emptyPropertySet(std::span<const ClassId> formats, bool ansi);

} // namespace quillford
