#include "support/CompoundChecker.h"
#include "support/CompoundTesting.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

void expectSound(const MemoryCompound& compound) {
    const CompoundCheck found = checkCompoundFile(compound.file->bytes, CheckMode::Strict);
    ASSERT_TRUE(found.complaints.empty()) << found.text();
}

} // namespace

TEST(NameTree, stays_balanced_and_ordered_whatever_the_order_of_insertion_and_removal) {
    constexpr int Count = 61;
    for (const int stride : {1, 60, 7, 23}) {
        const MemoryCompound compound;
        Storage root = compound.create();
        for (int i = 0; i < Count; ++i) {
            (void)root.CreateStorage(u"Index %1"_s.arg((i * stride) % Count), Mode);
            expectSound(compound);
        }
        EXPECT_EQ(root.Elements().Count(), Count);
        for (int i = 0; i < Count; ++i) {
            root.DestroyElement(u"Index %1"_s.arg((i * stride * 5) % Count));
            expectSound(compound);
        }
        EXPECT_EQ(root.Elements().Count(), 0);
    }
}

TEST(NameTree, of_another_writer_with_red_under_red_is_put_in_order_by_the_first_change) {
    const MemoryCompound compound;
    {
        Storage root = compound.create();
        for (int i = 0; i < 20; ++i)
            (void)root.CreateStream(u"s%1"_s.arg(i), Mode);
    }
    constexpr std::size_t Entry = 128;
    constexpr std::size_t Colour = 67;
    // Every entry of every directory sector red: the sectors are found by the names in them.
    for (std::size_t place = 512; place < compound.file->bytes.size(); place += Entry) {
        const int kind = std::to_integer<int>(compound.file->bytes[place + 66]);
        if (kind == 2 && compound.file->bytes[place] == std::byte{'s'})
            compound.file->bytes[place + Colour] = std::byte{0};
    }
    const std::vector<std::byte> before = compound.file->bytes;
    ASSERT_FALSE(checkCompoundFile(before, CheckMode::Strict).complaints.empty());
    {
        Storage root = compound.open();
        EXPECT_EQ(readStream(root, u"S7"_s), QByteArray());
    }
    EXPECT_TRUE(compound.file->bytes == before) << "reading changes nothing";
    (void)compound.open().CreateStream(u"new"_s, Mode);
    expectSound(compound);
    EXPECT_EQ(compound.open().Elements().Count(), 21);
}
