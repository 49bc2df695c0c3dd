#pragma once

#include <QString>

#include <array>
#include <cstddef>

namespace quillford {

/// A class identifier as it stands in a file: 16 bytes, the first three groups little-endian.
struct ClassId {
    std::array<std::byte, 16> bytes{};

    /// The identifier of the text `{8-4-4-4-12 hexadecimal digits}`. The text is the program's own;
    /// any other form raises `InvalidParameter`.
    [[nodiscard]] static ClassId fromText(const QString& text);

    /// The braced form with capital digits, 38 characters.
    [[nodiscard]] QString toText() const;

    [[nodiscard]] bool isNull() const { return *this == ClassId{}; }

    [[nodiscard]] auto operator<=>(const ClassId& other) const = default;
};

} // namespace quillford
