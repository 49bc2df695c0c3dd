#include "persistence/compound/mdlStorage.h"

#include "persistence/compound/CompoundFormat.h"
#include "persistence/compound/EmptyPropertySet.h"
#include "persistence/compound/FileByteStore.h"
#include "persistence/compound/StorageError.h"
#include "persistence/compound/StorageModes.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <span>
#include <utility>

namespace quillford {

namespace {

Storage createFile(const QString& fileName) {
    auto store = FileByteStore::create(fileName);
    FileByteStore& made = *store;
    Storage root = Storage::createRoot(std::move(store), fileName);
    made.giveName();
    return root;
}

Storage createOrReplaceFile(const QString& fileName, bool overwrite) {
    if (overwrite && QFile::exists(fileName))
        return Storage::createRoot(FileByteStore::open(fileName), fileName);
    return createFile(fileName);
}

/// Writes one property-set stream; false when an error was noted.
bool replaceStream(Storage& storage, const QString& name, const QByteArray& bytes) {
    try {
        Stream stream = storage.CreateStream(name, StorageMode::ExclusiveCreate);
        stream.WriteBuf(bytes);
        stream.Commit(0);
        return true;
    } catch (const Error&) {
        return false; // noted: the other sets are made all the same
    }
}

} // namespace

Storage OpenStorageFile(const QString& fileName) {
    return Storage::openRoot(FileByteStore::open(fileName), fileName);
}

Storage CreateStorageFile(const QString& fileName, bool& createProps, bool ansi, bool& overwrite) {
    Storage storage;
    try {
        storage = createOrReplaceFile(fileName, overwrite);
    } catch (const Error& failure) {
        storage = Storage(failure);
        if (failure.number() == FileAlreadyExistsNumber) {
            createProps = false;
            try {
                storage = OpenStorageFile(fileName);
            } catch (const Error& openFailure) {
                storage = Storage(openFailure);
            }
        }
    }
    if (createProps)
        CreatePropertySets(storage, ansi);
    return storage;
}

bool CreatePropertySets(Storage& storage, bool ansi) {
    const std::array summary = {
        ClassId::fromText(QStringLiteral("{F29F85E0-4FF9-1068-AB91-08002B27B3D9}"))};
    const std::array documentSummaryAndUser = {
        ClassId::fromText(QStringLiteral("{D5CDD502-2E9C-101B-9397-08002B2CF9AE}")),
        ClassId::fromText(QStringLiteral("{D5CDD505-2E9C-101B-9397-08002B2CF9AE}"))};
    const bool first = replaceStream(storage, QStringLiteral("\005SummaryInformation"),
                                     emptyPropertySet(summary, ansi));
    const bool others = replaceStream(storage, QStringLiteral("\005DocumentSummaryInformation"),
                                      emptyPropertySet(documentSummaryAndUser, ansi));
    return first && others;
}

bool IsStorageFile(const QString& fileName) {
    // A pipe would make the program wait for somebody who writes into it.
    const QFileInfo info(fileName);
    if (info.exists() && !info.isFile())
        throw storageError(StorageCode::AccessDenied, fileName);
    QFile file(fileName);
    errno = 0;
    if (!file.open(QIODevice::ReadOnly))
        throw storageError(codeOfOpenFailure(errno, fileName), fileName);
    const QByteArray start = file.read(static_cast<qint64>(compound::Signature.size()));
    return std::ranges::equal(std::as_bytes(std::span(start)), compound::Signature);
}

} // namespace quillford
