#pragma once

#include <QtEndian>

#include <cstddef>
#include <span>
#include <type_traits>

/// The only place where integers meet bytes. Everything that the program stores is little-endian.
namespace quillford {

/// The integer that stands in `bytes` from `position` on. The caller has made sure that
/// `position + sizeof(Integer)` does not exceed the size.
template <typename Integer>
[[nodiscard]] Integer loadLittleEndian(std::span<const std::byte> bytes, std::size_t position) {
    static_assert(std::is_integral_v<Integer>);
    return qFromLittleEndian<Integer>(bytes.subspan(position, sizeof(Integer)).data());
}

/// Puts `value` into `bytes` from `position` on, under the same condition.
template <typename Integer>
void storeLittleEndian(std::span<std::byte> bytes, std::size_t position, Integer value) {
    static_assert(std::is_integral_v<Integer>);
    qToLittleEndian<Integer>(value, bytes.subspan(position, sizeof(Integer)).data());
}

} // namespace quillford
