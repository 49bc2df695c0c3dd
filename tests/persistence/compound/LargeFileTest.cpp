#include "support/CompoundChecker.h"
#include "support/CompoundTesting.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// 109 table sectors in the header cover 109 * 128 sectors of 512 bytes, about 7 MB.
constexpr int LastSizeWithoutDifat = 109 * 128 * 512;

void expectSound(const MemoryCompound& compound, CheckMode mode) {
    const CompoundCheck found = checkCompoundFile(compound.file->bytes, mode);
    ASSERT_TRUE(found.complaints.empty()) << found.text();
}

} // namespace

TEST(LargeFile, grows_over_the_end_of_the_header_list_and_over_several_difat_sectors) {
    const MemoryCompound compound;
    Storage root = compound.create();
    Stream stream = root.CreateStream(u"large"_s, Mode);
    const QByteArray block = testBytes(1000000, 1);
    for (int i = 0; i < 30; ++i) {
        stream.WriteBuf(block);
        root.Commit(0);
        expectSound(compound, CheckMode::Strict);
    }
    for (int i = 0; i < 30; ++i) {
        stream.SSeek(i * 1000000LL);
        QByteArray read;
        ASSERT_EQ(stream.ReadBuf(read, 1000000), 1000000);
        ASSERT_TRUE(read == block) << i;
    }
}

TEST(LargeFile, opens_after_every_single_write_while_the_difat_grows) {
    const MemoryCompound compound;
    Storage root = compound.create();
    writeStream(root, u"whole"_s, testBytes(5000, 7));
    Stream stream = root.CreateStream(u"large"_s, Mode);
    stream.WriteBuf(testBytes(LastSizeWithoutDifat - 400000, 1));
    root.Commit(0);
    int checks = 0;
    compound.file->afterWrite = [&] {
        ++checks;
        expectSound(compound, CheckMode::AfterStop);
        Storage copy = MemoryCompound::of(compound.file->bytes).open();
        EXPECT_EQ(readStream(copy, u"whole"_s), testBytes(5000, 7));
    };
    for (int i = 0; i < 20; ++i) {
        stream.WriteBuf(testBytes(65536, i));
        root.Commit(0);
    }
    compound.file->afterWrite = nullptr;
    stream.WriteBuf(testBytes(127 * 65536 - 1000000, 2));
    compound.file->afterWrite = [&] {
        ++checks;
        expectSound(compound, CheckMode::AfterStop);
    };
    for (int i = 0; i < 20; ++i) {
        stream.WriteBuf(testBytes(65536, i));
        root.Commit(0);
    }
    expectSound(compound, CheckMode::Strict);
    EXPECT_GT(checks, 100);
}

TEST(LargeFile, with_a_stream_of_70_megabytes_is_written_and_read_whole) {
    const MemoryCompound compound;
    {
        Storage root = compound.create();
        writeStream(root, u"large"_s, testBytes(70000000, 3));
        writeStream(root, u"small"_s, "x");
    }
    expectSound(compound, CheckMode::Strict);
    Storage root = compound.open();
    EXPECT_TRUE(readStream(root, u"large"_s) == testBytes(70000000, 3));
    EXPECT_EQ(readStream(root, u"small"_s), "x");
}

TEST(LargeFile, gives_the_sectors_of_a_destroyed_stream_to_the_next) {
    const MemoryCompound compound;
    Storage root = compound.create();
    writeStream(root, u"large"_s, testBytes(20000000, 3));
    root.Commit(0);
    const std::size_t length = compound.file->bytes.size();
    root.DestroyElement(u"large"_s);
    writeStream(root, u"next"_s, testBytes(20000000, 4));
    root.Commit(0);
    expectSound(compound, CheckMode::Strict);
    EXPECT_EQ(compound.file->bytes.size(), length);
    EXPECT_TRUE(readStream(root, u"next"_s) == testBytes(20000000, 4));
}
