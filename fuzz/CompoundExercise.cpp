#include "CompoundExercise.h"

#include "base/Error.h"
#include "persistence/compound/Storage.h"
#include "persistence/compound/StorageModes.h"
#include "support/MemoryByteStore.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

void promise(bool holds) {
    if (!holds)
        std::abort();
}

std::shared_ptr<MemoryFile> memoryFile(std::span<const std::byte> bytes) {
    auto file = std::make_shared<MemoryFile>();
    file->bytes.assign(bytes.begin(), bytes.end());
    return file;
}

Storage open(const std::shared_ptr<MemoryFile>& file) {
    return Storage::openRoot(std::make_unique<MemoryByteStore>(file), u"fuzz"_s);
}

/// An element that a damaged file shows and does not give is passed over.
template <typename Call>
void passOverErrors(Call call) {
    try {
        call();
    } catch (const Error& error) {
        promise(error.number() != 0);
    }
}

std::vector<std::byte> contentOf(Stream stream) {
    QByteArray bytes;
    const qint32 count = stream.ReadBuf(bytes, static_cast<qint32>(stream.Stat().Size()));
    const auto view = std::as_bytes(std::span(bytes.data(), static_cast<std::size_t>(count)));
    return {view.begin(), view.end()};
}

/// Reads all streams; no sector belongs to two of them, so that they cannot be more than the file.
void readAll(const Storage& root, std::size_t fileSize) {
    std::vector<Storage> storages{root};
    std::size_t total = 0;
    for (std::size_t i = 0; i < storages.size(); ++i) {
        const StorageElements elements = storages[i].Elements();
        for (const VBSTATSTG& element : elements) {
            passOverErrors([&] {
                if (element.StorageType() == VBSTATSTG::StreamElement)
                    total +=
                        contentOf(storages[i].OpenStream(element.Name(), StorageMode::Exclusive))
                            .size();
                else
                    storages.push_back(
                        storages[i].OpenStorage(element.Name(), StorageMode::Exclusive));
            });
        }
    }
    promise(total <= fileSize);
}

void changeOld(Storage& root) {
    const StorageElements elements = root.Elements();
    for (qint32 i = 1; i <= elements.Count() && i <= 4; ++i) {
        const QString name = elements.Item(i).Name();
        const bool isStream = elements.Item(i).StorageType() == VBSTATSTG::StreamElement;
        passOverErrors([&] {
            if (i == 1)
                root.DestroyElement(name);
            else if (isStream && i == 2)
                root.OpenStream(name, StorageMode::Exclusive).SetSize(100);
            else if (isStream && i == 3)
                root.OpenStream(name, StorageMode::Exclusive).SetSize(9000);
            else
                root.RenameElement(name, u"renamed"_s);
        });
    }
}

void writeNew(Storage& root, const QString& name, const std::vector<std::byte>& content) {
    Storage inner = root.CreateStorage(u"new storage"_s, StorageMode::Exclusive);
    inner.CreateStream(name, StorageMode::ExclusiveCreate).write(content);
    root.Commit(0);
}

} // namespace

void exerciseCompoundFile(std::span<const std::byte> bytes) {
    const auto file = memoryFile(bytes);
    const std::vector<std::byte> small(1000, std::byte{0x11});
    const std::vector<std::byte> large(5000, std::byte{0x22});
    bool isWritten = false;
    passOverErrors([&] {
        Storage root = open(file);
        readAll(root, file->bytes.size());
        changeOld(root);
        writeNew(root, u"small"_s, small);
        writeNew(root, u"large"_s, large);
        isWritten = true;
    });
    if (!isWritten)
        return;
    // What was written without an error is there when the file is opened again; an error here is
    // not passed over.
    const Storage root = open(file);
    readAll(root, file->bytes.size());
    Storage inner = Storage(root).OpenStorage(u"new storage"_s, StorageMode::Exclusive);
    promise(contentOf(inner.OpenStream(u"small"_s, StorageMode::Exclusive)) == small);
    promise(contentOf(inner.OpenStream(u"large"_s, StorageMode::Exclusive)) == large);
}

void exerciseFields(std::span<const std::byte> bytes) {
    if (bytes.empty())
        return;
    const std::size_t types =
        std::min<std::size_t>(std::to_integer<std::size_t>(bytes[0]), bytes.size() - 1);
    Storage root =
        Storage::createRoot(std::make_unique<MemoryByteStore>(memoryFile({})), u"fuzz"_s);
    Stream stream = root.CreateStream(u"fields"_s, StorageMode::Exclusive);
    stream.write(bytes.subspan(1 + types));
    stream.SSeek(0);
    passOverErrors([&] {
        for (const std::byte type : bytes.subspan(1, types))
            (void)stream.ReadData(std::to_integer<qint32>(type));
    });
    passOverErrors([&] { (void)stream.ReadObject(ObjectRegistry()); });
}
