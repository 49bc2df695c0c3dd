#pragma once

#include "persistence/compound/Storage.h"

namespace quillford::compound {

/// Copies the element `name` of `source`, with all below it, to the free name `newName` of `dest`,
/// which may be of another file but does not lie within the element.
void copyElement(Storage& source, const QString& name, bool isStream, Storage& dest,
                 const QString& newName);

} // namespace quillford::compound
