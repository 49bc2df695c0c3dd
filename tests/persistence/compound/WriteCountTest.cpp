#include "support/CompoundTesting.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// The shape of an ordinary project: ten streams and 178 strings, 30 KB in all.
void writeProject(Storage& root, int seed) {
    constexpr int Streams = 10;
    constexpr int Strings = 178;
    constexpr int Units = 82;
    int written = 0;
    for (int i = 0; i < Streams; ++i) {
        Stream stream = root.CreateStream(u"Section %1"_s.arg(i), Mode);
        for (; written < (i + 1) * Strings / Streams; ++written)
            stream.WriteData(QString(Units, QChar(u'a' + (written + seed) % 26)));
    }
    root.Commit(0);
}

} // namespace

TEST(WriteCount, of_an_ordinary_project_is_at_most_250_when_it_is_made_or_written_over) {
    const MemoryCompound compound;
    Storage root = compound.create();
    writeProject(root, 0);
    EXPECT_LE(compound.file->writes, 250U);
    RecordProperty("created", static_cast<int>(compound.file->writes));
    const std::size_t created = compound.file->writes;
    const std::size_t length = compound.file->bytes.size();
    writeProject(root, 1);
    EXPECT_LE(compound.file->writes - created, 250U);
    RecordProperty("written_over", static_cast<int>(compound.file->writes - created));
    EXPECT_EQ(compound.file->bytes.size(), length) << "the same save leaves the length";
}

TEST(WriteCount, of_many_small_fields_is_that_of_blocks_of_64_kilobytes) {
    const MemoryCompound compound;
    Storage root = compound.create();
    Stream stream = root.CreateStream(u"s"_s, Mode);
    constexpr int Fields = 100000;
    for (int i = 0; i < Fields; ++i)
        stream.WriteData(double(i));
    root.Commit(0);
    // 800,000 bytes are 13 blocks; each needs a few writes of tables beside its own.
    EXPECT_LE(compound.file->writes, 100U);
}

TEST(WriteCount, of_a_large_array_does_not_grow_with_its_length) {
    const MemoryCompound compound;
    Storage root = compound.create();
    Stream stream = root.CreateStream(u"picture"_s, Mode);
    stream.WriteData(u"/home/ann/fig1.png"_s);
    stream.WriteData(qint32{2000000});
    const std::size_t before = compound.file->writes;
    stream.WriteBuf(testBytes(2000000, 1));
    root.Commit(0);
    EXPECT_LE(compound.file->writes - before, 12U);
}
