#include "base/ByteOrder.h"

#include <array>
#include <gtest/gtest.h>

using namespace quillford;

TEST(ByteOrder, stores_the_low_byte_first) {
    std::array<std::byte, 6> bytes{};
    storeLittleEndian<quint32>(bytes, 1, 0x11223344U);
    EXPECT_EQ(bytes, (std::array<std::byte, 6>{std::byte{0}, std::byte{0x44}, std::byte{0x33},
                                               std::byte{0x22}, std::byte{0x11}, std::byte{0}}));
}

TEST(ByteOrder, loads_what_it_stored_at_any_alignment) {
    std::array<std::byte, 16> bytes{};
    for (std::size_t position = 0; position + sizeof(qint64) <= bytes.size(); ++position) {
        storeLittleEndian<qint64>(bytes, position, -1234567890123456789LL);
        EXPECT_EQ(loadLittleEndian<qint64>(bytes, position), -1234567890123456789LL);
    }
}
