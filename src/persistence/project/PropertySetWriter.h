#pragma once

#include "persistence/project/PropertySet.h"

#include <QByteArray>

namespace quillford {

/// The bytes of a property-set stream: sections and properties in their order, each value at a
/// multiple of 4. Raises 0x80030111 for a set of 2 GB and more.
[[nodiscard]] QByteArray writePropertySet(const PropertySet& set);

} // namespace quillford
