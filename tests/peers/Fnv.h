#pragma once

#include <cstddef>
#include <cstdint>

/// FNV-1a of 64 bits over bytes that come piece by piece.
class Fnv {
public:
    void add(const unsigned char* bytes, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i)
            value_ = (value_ ^ bytes[i]) * 0x100000001B3ULL;
    }

    [[nodiscard]] std::uint64_t value() const { return value_; }

private:
    std::uint64_t value_ = 0xCBF29CE484222325ULL;
};
