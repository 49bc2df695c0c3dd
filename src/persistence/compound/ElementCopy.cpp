#include "persistence/compound/ElementCopy.h"

#include "persistence/compound/StorageModes.h"

#include <limits>
#include <utility>
#include <vector>

namespace quillford::compound {

namespace {

void copyStream(Storage& source, const QString& name, Storage& dest, const QString& newName) {
    Stream from = source.OpenStream(name, StorageMode::Exclusive);
    Stream to = dest.CreateStream(newName, StorageMode::Exclusive);
    (void)from.CopyTo(to, std::numeric_limits<qint64>::max());
}

} // namespace

void copyElement(Storage& source, const QString& name, bool isStream, Storage& dest,
                 const QString& newName) {
    if (isStream)
        return copyStream(source, name, dest, newName);
    // Storages are kept on a list and not on the stack: a file may nest them as deep as it likes.
    std::vector<std::pair<Storage, Storage>> pairs{
        {source.OpenStorage(name, StorageMode::Exclusive),
         dest.CreateStorage(newName, StorageMode::Exclusive)}};
    while (!pairs.empty()) {
        auto [from, to] = std::move(pairs.back());
        pairs.pop_back();
        for (const VBSTATSTG& element : from.Elements()) {
            const QString inner = element.Name();
            if (element.StorageType() == VBSTATSTG::StreamElement)
                copyStream(from, inner, to, inner);
            else
                pairs.emplace_back(from.OpenStorage(inner, StorageMode::Exclusive),
                                   to.CreateStorage(inner, StorageMode::Exclusive));
        }
    }
}

} // namespace quillford::compound
