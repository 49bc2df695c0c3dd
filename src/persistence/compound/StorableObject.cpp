#include "persistence/compound/StorableObject.h"

#include "base/Error.h"

#include <utility>

namespace quillford {

void ObjectRegistry::add(const ClassId& classId, Maker maker) {
    makers_[classId] = std::move(maker);
}

std::shared_ptr<StorableObject> ObjectRegistry::make(const ClassId& classId) const {
    const auto found = makers_.find(classId);
    if (found == makers_.end())
        throw Error(ClassNotRegistered, QStringLiteral("The class is not registered."),
                    classId.toText());
    return found->second();
}

} // namespace quillford
