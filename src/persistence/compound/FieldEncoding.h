#pragma once

#include "persistence/compound/FieldValue.h"
#include "persistence/compound/StorableObject.h"

/// The encoding of values in a stream, without type tags: the writer takes the layout from the
/// value, the reader is told the type. All integers are little-endian.
///
///     16-bit, 32-bit integers, floats, date   the number as it stands
///     currency                                64 bits, the number times 10000
///     boolean                                 16 bits, 0 or -1; any value but 0 reads as true
///     byte                                    8 bits; never read
///     string                                  32-bit count of code units, then the code units
///     object                                  16 bytes of class identifier, all zero for nothing,
///                                             else followed by FF FF and the object's own bytes
namespace quillford {

/// Writes `value` and gives the number of bytes of the last write: of a string that is its code
/// units without the count. An empty value and an object give 0.
[[nodiscard]] qint32 writeField(Stream& stream, const FieldValue& value);

/// Reads a value of type `varType`; bytes that the stream no longer has count as zero. A type that
/// is not read (`Object` and `Byte` among them) gives the empty value and reads nothing.
[[nodiscard]] FieldValue readField(Stream& stream, qint32 varType);

/// Writes an object, or nothing.
void writeObject(Stream& stream, const std::shared_ptr<StorableObject>& object);

/// Reads what `writeObject` wrote, making the object by `registry`.
[[nodiscard]] std::shared_ptr<StorableObject> readObject(Stream& stream,
                                                         const ObjectRegistry& registry);

} // namespace quillford
