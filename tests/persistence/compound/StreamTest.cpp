#include "support/CompoundChecker.h"
#include "support/CompoundTesting.h"
#include "support/PrintQt.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class StreamOfAFile : public testing::Test {
protected:
    MemoryCompound compound;
    Storage root = compound.create();
    Stream stream = root.CreateStream(u"s"_s, Mode);

    QByteArray all() {
        stream.SSeek(0);
        QByteArray bytes;
        const qint32 count = stream.ReadBuf(bytes, 1000000);
        bytes.truncate(count);
        return bytes;
    }

    void expectSound() {
        root.Commit(0);
        const CompoundCheck found = checkCompoundFile(compound.file->bytes, CheckMode::Strict);
        EXPECT_TRUE(found.complaints.empty()) << found.text();
    }
};

} // namespace

TEST_F(StreamOfAFile, reads_what_was_written_for_every_size_at_which_something_changes) {
    for (const int size :
         {0, 1, 63, 64, 65, 511, 512, 513, 4095, 4096, 4097, 65535, 65536, 65537}) {
        const QString name = u"size %1"_s.arg(size);
        const QByteArray bytes = testBytes(size, size);
        writeStream(root, name, bytes.isNull() ? QByteArray("") : bytes);
        EXPECT_EQ(readStream(root, name), bytes);
        expectSound();
    }
}

TEST_F(StreamOfAFile, keeps_the_tail_behind_a_shorter_text) {
    const QByteArray old = testBytes(100, 1);
    stream.WriteBuf(old);
    stream = Storage(root).CreateStream(u"other"_s, Mode);
    Stream again = root.CreateStream(u"s"_s, Mode);
    EXPECT_EQ(again.Stat().Size(), 100);
    EXPECT_EQ(again.WriteBuf("new"), 3);
    stream = again;
    EXPECT_EQ(all(), "new" + old.mid(3));
}

TEST_F(StreamOfAFile, shows_the_size_at_binding_whatever_is_written_later) {
    stream.WriteBuf(testBytes(5000, 1));
    root.Commit(0);
    EXPECT_EQ(stream.Stat().Size(), 0);
    EXPECT_EQ(root.Elements().Item(1).Size(), 5000);
}

TEST_F(StreamOfAFile, grows_over_the_cutoff_and_shrinks_below_it) {
    QByteArray expected;
    for (const int size : {10, 4095, 1, 4096, 9000, 8999, 4097, 4096, 4095, 64, 63, 0, 20000, 0}) {
        stream.SetSize(size);
        expected.resize(size);
        const QByteArray bytes = testBytes(size, size + 1);
        stream.SSeek(0);
        stream.WriteBuf(bytes.isNull() ? QByteArray("") : bytes);
        EXPECT_EQ(all(), bytes) << size;
        expectSound();
    }
}

TEST_F(StreamOfAFile, keeps_the_first_bytes_when_its_size_is_set) {
    const QByteArray bytes = testBytes(10000, 3);
    stream.WriteBuf(bytes);
    stream.SetSize(5000);
    EXPECT_EQ(all(), bytes.left(5000));
    stream.SetSize(100);
    EXPECT_EQ(all(), bytes.left(100));
    stream.SetSize(6000);
    EXPECT_EQ(all(), bytes.left(100) + QByteArray(5900, '\0'));
}

TEST_F(StreamOfAFile, fills_the_gap_before_a_write_behind_its_end_with_zeros) {
    stream.WriteBuf("ab");
    EXPECT_EQ(stream.SSeek(6), 6);
    stream.WriteBuf("cd");
    EXPECT_EQ(all(), QByteArray("ab\0\0\0\0cd", 8));
    stream.SSeek(200000);
    stream.WriteBuf("end");
    EXPECT_EQ(all().size(), 200003);
    EXPECT_EQ(all().mid(8, 199992), QByteArray(199992, '\0'));
    expectSound();
}

TEST_F(StreamOfAFile, reads_nothing_at_its_end_and_behind_it) {
    stream.WriteBuf("abc");
    QByteArray bytes;
    EXPECT_EQ(stream.ReadBuf(bytes, 5), 0);
    EXPECT_EQ(bytes, QByteArray(5, '\0'));
    stream.SSeek(1000);
    EXPECT_EQ(stream.ReadBuf(bytes, 5), 0);
    stream.SSeek(1);
    EXPECT_EQ(stream.ReadBuf(bytes, 5), 2);
    EXPECT_EQ(bytes, QByteArray("bc\0\0\0", 5));
}

TEST_F(StreamOfAFile, refuses_a_negative_position_size_or_count) {
    QByteArray bytes;
    EXPECT_EQ(errorOf([&] { stream.SSeek(-1); }), 0x80030001);
    EXPECT_EQ(errorOf([&] { stream.SetSize(-1); }), 0x80030001);
    EXPECT_EQ(errorOf([&] { stream.ReadBuf(bytes, -1); }), 9);
}

TEST_F(StreamOfAFile, raises_a_bounds_error_for_an_array_without_bounds) {
    EXPECT_EQ(errorOf([&] { stream.WriteBuf(QByteArray()); }), 9);
    EXPECT_EQ(stream.WriteBuf(QByteArray("")), 0);
}

TEST_F(StreamOfAFile, does_not_take_memory_for_a_count_that_is_far_more_than_there_is) {
    QByteArray bytes;
    EXPECT_EQ(errorOf([&] { stream.ReadBuf(bytes, 0x7FFFFFFF); }), 0x80030008);
}

TEST_F(StreamOfAFile, refuses_to_grow_beyond_what_the_format_holds) {
    EXPECT_EQ(errorOf([&] { stream.SetSize(0x80000000LL); }), 0x80030111);
    stream.SSeek(0x7FFFFFFF);
    stream.WriteBuf("x");
    EXPECT_EQ(errorOf([&] { root.Commit(0); }), 0x80030111);
    expectSound();
}

TEST_F(StreamOfAFile, has_a_clone_with_a_position_of_its_own) {
    stream.WriteBuf("abcdef");
    stream.SSeek(2);
    Stream clone = stream.Clone();
    QByteArray bytes;
    clone.ReadBuf(bytes, 2);
    EXPECT_EQ(bytes, "cd");
    stream.ReadBuf(bytes, 1);
    EXPECT_EQ(bytes, "c");
    clone.WriteBuf("XY");
    EXPECT_EQ(all(), "abcdXY");
}

TEST_F(StreamOfAFile, is_kept_open_by_its_clone) {
    Stream clone = stream.Clone();
    stream = root.CreateStream(u"other"_s, Mode);
    EXPECT_EQ(errorOf([&] { (void)root.OpenStream(u"s"_s, Mode); }), 0x80030005);
    clone = stream;
    EXPECT_EQ(errorOf([&] { (void)root.OpenStream(u"s"_s, Mode); }), 0);
}

TEST_F(StreamOfAFile, is_copied_from_position_to_position) {
    const QByteArray bytes = testBytes(200000, 5);
    stream.WriteBuf(bytes);
    stream.SSeek(10);
    Stream dest = root.CreateStream(u"dest"_s, Mode);
    dest.WriteBuf("head");
    EXPECT_EQ(stream.CopyTo(dest, 100), 100);
    EXPECT_EQ(stream.CopyTo(dest, 150000), 150000);
    EXPECT_EQ(stream.CopyTo(dest, 1000000), 200000 - 150110);
    EXPECT_EQ(stream.CopyTo(dest, 10), 0);
    EXPECT_EQ(stream.CopyTo(dest, 0), 0);
    stream = dest;
    EXPECT_EQ(all(), "head" + bytes.mid(10));
}

TEST_F(StreamOfAFile, can_be_copied_behind_itself) {
    stream.WriteBuf("abc");
    Stream clone = stream.Clone();
    stream.SSeek(0);
    EXPECT_EQ(stream.CopyTo(clone, 1000000), 3);
    EXPECT_EQ(all(), "abcabc");
}

TEST_F(StreamOfAFile, has_nothing_to_revert_to) {
    stream.WriteBuf("abc");
    stream.Revert();
    EXPECT_EQ(all(), "abc");
}

TEST_F(StreamOfAFile, has_reached_the_file_after_a_commit_of_its_own) {
    stream.WriteBuf("abc");
    stream.Commit(0);
    const auto copy = std::make_shared<MemoryFile>(*compound.file);
    Storage other = MemoryCompound{copy}.open();
    EXPECT_EQ(readStream(other, u"s"_s), "abc");
}

TEST_F(StreamOfAFile, cannot_be_used_once_the_root_is_released) {
    stream.WriteBuf("abc");
    root = Storage();
    QByteArray bytes;
    EXPECT_EQ(errorOf([&] { stream.WriteBuf("d"); }), 0x80030102);
    EXPECT_EQ(errorOf([&] { stream.ReadBuf(bytes, 1); }), 0x80030102);
    EXPECT_EQ(errorOf([&] { stream.SSeek(0); }), 0x80030102);
    EXPECT_EQ(errorOf([&] { stream.SetSize(0); }), 0x80030102);
    EXPECT_EQ(errorOf([&] { stream.Commit(0); }), 0x80030102);
    EXPECT_EQ(errorOf([&] { stream.Revert(); }), 0x80030102);
    EXPECT_EQ(errorOf([&] { (void)stream.Clone(); }), 0x80030102);
    EXPECT_EQ(errorOf([&] { (void)stream.ReadData(3); }), 0x80030102);
    EXPECT_EQ(errorOf([&] { stream.WriteData(qint32{1}); }), 0x80030102);
    EXPECT_EQ(stream.Stat().Name(), u"s"_s) << "the snapshot stays";
    root = compound.open();
    EXPECT_EQ(readStream(root, u"s"_s), "abc") << "what was gathered went out with the root";
}

TEST_F(StreamOfAFile, cannot_be_used_once_it_is_destroyed) {
    stream.WriteBuf("abc");
    root.DestroyElement(u"s"_s);
    EXPECT_EQ(errorOf([&] { stream.WriteBuf("d"); }), 0x80030102);
    expectSound();
}

TEST_F(StreamOfAFile, opened_for_reading_alone_is_not_written_and_the_reverse) {
    writeStream(root, u"r"_s, "abc");
    Stream reader = root.OpenStream(u"r"_s, StorageMode::Read | StorageMode::ShareExclusive);
    EXPECT_EQ(errorOf([&] { reader.WriteBuf("x"); }), 0x80030005);
    EXPECT_EQ(errorOf([&] { reader.SetSize(0); }), 0x80030005);
    Stream writer = root.CreateStream(u"w"_s, StorageMode::Write | StorageMode::ShareExclusive);
    EXPECT_EQ(errorOf([&] { (void)writer.ReadData(3); }), 0x80030005);
    EXPECT_EQ(writer.WriteData(qint32{3}), 4);
}

TEST_F(StreamOfAFile, notes_a_failed_array_and_has_the_next_call_on_a_storage_raise_it) {
    stream.Commit(0);
    compound.file->failingWrite = compound.file->writes;
    EXPECT_EQ(stream.WriteBuf(testBytes(100000, 1)), 0);
    EXPECT_EQ(errorOf([&] { root.Commit(0); }), 0x8003001D);
    EXPECT_EQ(errorOf([&] { root.Commit(0); }), 0) << "raised once";
}

TEST_F(StreamOfAFile, raises_a_failed_release_by_the_next_call_on_a_storage) {
    stream.WriteBuf("abc");
    compound.file->failingWrite = compound.file->writes;
    stream = Storage(MemoryCompound().create()).CreateStream(u"elsewhere"_s, Mode);
    EXPECT_EQ(errorOf([&] { (void)root.Elements(); }), 0x8003001D);
    expectSound();
}

TEST_F(StreamOfAFile, raises_a_failed_field_at_once_when_it_is_written_at_once) {
    compound.file->failingWrite = compound.file->writes;
    EXPECT_EQ(errorOf([&] { stream.WriteData(QString(50000, u'x')); }), 0x8003001D);
}
