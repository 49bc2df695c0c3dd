#include "support/CompoundTesting.h"
#include "support/PrintQt.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

TEST(VBSTATSTG, tells_the_null_class_as_38_characters_of_zeros) {
    Storage root = MemoryCompound().create();
    (void)root.CreateStorage(u"Pictures"_s, Mode);
    const QString text = root.Elements().Item(1).CLSID();
    EXPECT_EQ(text, u"{00000000-0000-0000-0000-000000000000}"_s);
    EXPECT_EQ(text.size(), 38);
}

TEST(VBSTATSTG, tells_name_and_type_of_storages_and_streams) {
    Storage root = MemoryCompound().create();
    EXPECT_EQ(root.Stat().StorageType(), 1);
    EXPECT_EQ(root.Stat().Name(), u"memory"_s);
    const Storage storage = root.CreateStorage(u"Pictures"_s, Mode);
    EXPECT_EQ(storage.Stat().StorageType(), 1);
    EXPECT_EQ(storage.Stat().Name(), u"Pictures"_s);
    const Stream stream = root.CreateStream(u"Section 1"_s, Mode);
    EXPECT_EQ(stream.Stat().StorageType(), 2);
    EXPECT_EQ(stream.Stat().Name(), u"Section 1"_s);
}

TEST(VBSTATSTG, tells_a_class_that_is_in_the_file) {
    const MemoryCompound compound;
    (void)compound.create();
    // The class of the root entry: the directory is the second sector.
    constexpr std::size_t ClassPlace = 1024 + 80;
    compound.file->bytes[ClassPlace] = std::byte{0x33};
    compound.file->bytes[ClassPlace + 15] = std::byte{0xFF};
    EXPECT_EQ(compound.open().Stat().CLSID(), u"{00000033-0000-0000-0000-0000000000FF}"_s);
}
