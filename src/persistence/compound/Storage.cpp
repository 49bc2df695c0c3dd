#include "persistence/compound/Storage.h"

#include "persistence/compound/ElementBinding.h"
#include "persistence/compound/ElementCopy.h"
#include "persistence/compound/StorageError.h"
#include "persistence/compound/StorageModes.h"

#include <algorithm>
#include <utility>

namespace quillford {

using compound::CompoundFile;
using compound::ElementBinding;
using compound::ElementTree;
using compound::EntryId;
using compound::Kind;
using compound::OpenElement;
using compound::Volume;

Storage::Storage()
    : reason_(Error(NotBoundNumber, QStringLiteral("The storage is bound to nothing."))) {}

Storage::Storage(Error reason) : reason_(std::move(reason)) {}

Storage::Storage(std::shared_ptr<const ElementBinding> binding) : binding_(std::move(binding)) {}

namespace {

std::shared_ptr<ElementBinding> bind(std::shared_ptr<OpenElement> element, qint32 mode,
                                     const QString& rootName = {}) {
    const qint32 access = mode & StorageMode::AccessBits;
    const VBSTATSTG stat = compound::describe(element->file().settled(), element->id(), rootName);
    return std::make_shared<ElementBinding>(ElementBinding{
        std::move(element), access != StorageMode::Write, access != StorageMode::Read, stat});
}

} // namespace

Storage Storage::openRoot(std::unique_ptr<ByteStore> store, const QString& name) {
    return Storage(bind(CompoundFile::open(std::move(store)), StorageMode::Exclusive, name));
}

Storage Storage::createRoot(std::unique_ptr<ByteStore> store, const QString& name) {
    return Storage(bind(CompoundFile::create(std::move(store)), StorageMode::Exclusive, name));
}

const ElementBinding& Storage::binding() const {
    if (!binding_)
        throw Error(*reason_);
    return *binding_;
}

/// Every call comes in here: the file of the storage, after a failure that was kept is raised.
CompoundFile& Storage::enter() const {
    CompoundFile& file = binding().element->file();
    file.raiseKept();
    return file;
}

EntryId Storage::idOf(const QString& name) const {
    Volume& volume = enter().settled();
    const std::optional<EntryId> found = ElementTree(volume).find(binding().element->id(), name);
    if (!found)
        throw storageError(StorageCode::FileNotFound, name);
    return *found;
}

void Storage::requireWritable() const {
    if (!binding().mayWrite)
        throw storageError(StorageCode::AccessDenied);
}

void Storage::requireFree(const QString& name) const {
    compound::requireElementName(name);
    Volume& volume = enter().settled();
    if (ElementTree(volume).find(binding().element->id(), name))
        throw storageError(StorageCode::FileAlreadyExists, name);
}

void Storage::requireClosed(EntryId element) const {
    CompoundFile& file = enter();
    const std::vector<EntryId> all = ElementTree(file.settled()).withDescendants(element);
    if (std::any_of(all.begin(), all.end(), [&](EntryId id) { return file.isOpen(id); }))
        throw storageError(StorageCode::AccessDenied);
}

void Storage::Commit(qint32 /*flags*/) {
    enter().flush();
}

void Storage::Sync() {
    enter().sync();
}

void Storage::Revert() {
    enter().flush();
}

const VBSTATSTG& Storage::Stat() const {
    return binding().stat;
}

std::shared_ptr<ElementBinding> Storage::openElement(const QString& name, qint32 mode,
                                                     bool stream) {
    CompoundFile& file = enter();
    compound::requireElementMode(mode, 0);
    compound::requireElementName(name);
    const EntryId id = idOf(name);
    if (file.settled().directory.at(id).kind() != (stream ? Kind::Stream : Kind::Storage))
        throw storageError(StorageCode::FileNotFound, name);
    return bind(file.openElement(id), mode);
}

std::shared_ptr<ElementBinding> Storage::createOrOpen(const QString& name, qint32 mode,
                                                      bool stream) {
    CompoundFile& file = enter();
    compound::requireElementMode(mode, StorageMode::Create);
    requireWritable();
    compound::requireElementName(name);
    const EntryId parent = binding().element->id();
    if (const auto old = ElementTree(file.settled()).find(parent, name)) {
        if ((mode & StorageMode::Create) == 0)
            return openElement(name, mode, stream);
        requireClosed(*old);
        DestroyElement(name);
    }
    const EntryId made = file.change([&](Volume& volume) {
        return ElementTree(volume).create(parent, name, stream ? Kind::Stream : Kind::Storage);
    });
    return bind(file.openElement(made), mode);
}

Storage Storage::CreateStorage(const QString& name, qint32 mode) {
    return Storage(createOrOpen(name, mode, false));
}

Stream Storage::CreateStream(const QString& name, qint32 mode) {
    return Stream(createOrOpen(name, mode, true));
}

Storage Storage::OpenStorage(const QString& name, qint32 mode) {
    return Storage(openElement(name, mode, false));
}

Stream Storage::OpenStream(const QString& name, qint32 mode) {
    return Stream(openElement(name, mode, true));
}

void Storage::DestroyElement(const QString& name) {
    const EntryId element = idOf(name);
    requireWritable();
    CompoundFile& file = enter();
    const std::vector<EntryId> gone = ElementTree(file.settled()).withDescendants(element);
    file.change([&](Volume& volume) {
        ElementTree(volume).destroy(binding().element->id(), element);
        return true;
    });
    file.revert(gone);
}

StorageElements Storage::Elements() {
    Volume& volume = enter().settled();
    StorageElements elements;
    for (const EntryId id : ElementTree(volume).elements(binding().element->id())) {
        // A damaged record that tells neither a name nor a kind cannot be opened, nor shown.
        const std::optional<Kind> kind = volume.directory.at(id).kind();
        if (volume.directory.at(id).name() && (kind == Kind::Storage || kind == Kind::Stream))
            elements.AddElement(compound::describe(volume, id));
    }
    return elements;
}

void Storage::RenameElement(const QString& oldName, const QString& newName) {
    MoveElementTo(oldName, *this, newName, StorageMode::Move);
}

void Storage::MoveElementTo(const QString& name, Storage& dest, const QString& newName,
                            qint32 flags) {
    const EntryId element = idOf(name);
    if (flags != StorageMode::Move && flags != StorageMode::Copy)
        throw storageError(StorageCode::InvalidFlag);
    requireWritable();
    dest.requireWritable();
    dest.requireFree(newName);
    const bool inSameFile = binding().element->isOfSameFile(*dest.binding().element);
    // The storage that is moved into is open, so this also refuses a move into the element itself;
    // a storage further down can be open while the ones above it are not.
    requireClosed(element);
    if (!inSameFile || flags == StorageMode::Copy) {
        const bool isStream = enter().settled().directory.at(element).kind() == Kind::Stream;
        compound::copyElement(*this, name, isStream, dest, newName);
        if (flags == StorageMode::Move)
            DestroyElement(name);
        return;
    }
    enter().change([&](Volume& volume) {
        ElementTree(volume).move(binding().element->id(), element, dest.binding().element->id(),
                                 newName);
        return true;
    });
}

} // namespace quillford
