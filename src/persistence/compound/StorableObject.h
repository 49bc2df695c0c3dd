#pragma once

#include "persistence/compound/ClassId.h"

#include <functional>
#include <map>
#include <memory>

namespace quillford {

class Stream;

/// Anything that `Stream::WriteObject` can be given. Whether it can be stored is told by the
/// interfaces that its class has beside this one.
class StorableObject {
public:
    StorableObject() = default;
    StorableObject(const StorableObject&) = delete;
    StorableObject& operator=(const StorableObject&) = delete;
    virtual ~StorableObject() = default;
};

/// An object that is stored as a class identifier and the bytes that it writes itself.
class IPersistStream {
public:
    virtual ~IPersistStream() = default;

    [[nodiscard]] virtual ClassId GetClassID() const = 0;

    /// Writes the object; with `clearDirty` it counts as unchanged from then on. Raises what the
    /// stream raises.
    virtual void Save(Stream& stream, bool clearDirty) = 0;

    /// Reads from the stream what `Save` wrote.
    virtual void Load(Stream& stream) = 0;
};

/// The same for objects that can also be made new, with values of their own.
class IPersistStreamInit {
public:
    virtual ~IPersistStreamInit() = default;

    [[nodiscard]] virtual ClassId GetClassID() const = 0;
    virtual void Save(Stream& stream, bool clearDirty) = 0;
    virtual void Load(Stream& stream) = 0;
    virtual void InitNew() = 0;
};

/// The classes whose objects `Stream::ReadObject` can make.
class ObjectRegistry {
public:
    /// Makes a new object of one class, owned by the caller.
    using Maker = std::function<std::shared_ptr<StorableObject>()>;

    /// No class is registered.
    static constexpr qint64 ClassNotRegistered = 0x80040154;
    /// The object does not have the interface.
    static constexpr qint64 NoInterface = 0x80004002;

    void add(const ClassId& classId, Maker maker);

    /// A new object of the class. Raises `ClassNotRegistered`.
    [[nodiscard]] std::shared_ptr<StorableObject> make(const ClassId& classId) const;

private:
    std::map<ClassId, Maker> makers_;
};

} // namespace quillford
