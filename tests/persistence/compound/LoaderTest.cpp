#include "support/CompoundChecker.h"
#include "support/CompoundTesting.h"
#include "support/PrintQt.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <chrono>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

QDir regressions() {
    return QDir(QStringLiteral(QUILLFORD_SOURCE_DIR "/fuzz/regressions/compound"));
}

MemoryCompound fileNamed(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    const QByteArray bytes = file.readAll();
    const auto view = std::as_bytes(std::span(bytes));
    MemoryCompound compound;
    compound.file->bytes.assign(view.begin(), view.end());
    return compound;
}

MemoryCompound goodFile() {
    return fileNamed(QStringLiteral(QUILLFORD_SOURCE_DIR "/fuzz/seeds/compound/good"));
}

/// Opens the file and makes a stream in it.
qint64 changeOf(const MemoryCompound& compound) {
    return errorOf([&] {
        Storage root = compound.open();
        writeStream(root, u"new"_s, testBytes(6000, 1));
        root.Commit(0);
    });
}

/// The good file with a hole of 2 TB behind it, as a sparse file has it.
class LongStore final : public ByteStore {
public:
    [[nodiscard]] quint64 size() override { return quint64{2} << 40; }

    [[nodiscard]] std::size_t read(quint64 offset, MutableBytes into) override {
        const std::size_t count = good_.read(offset, into);
        std::fill(into.begin() + static_cast<std::ptrdiff_t>(count), into.end(), std::byte{0});
        return into.size();
    }

    void write(quint64 offset, std::span<const Bytes> parts) override {
        good_.write(offset, parts);
    }

    void truncate(quint64 size) override { good_.truncate(size); }

    void sync() override {}

private:
    MemoryByteStore good_{goodFile().file};
};

} // namespace

TEST(Loader, changes_nothing_in_a_file_with_two_elements_of_one_name) {
    const MemoryCompound compound = fileNamed(QStringLiteral(
        QUILLFORD_SOURCE_DIR "/fuzz/regressions/project/two-sections-of-one-name-share-sectors"));
    const auto before = compound.file->bytes;
    EXPECT_EQ(changeOf(compound), 0x80030109);
    EXPECT_EQ(compound.file->bytes, before);
}

TEST(Loader, takes_no_time_for_a_hole_behind_the_last_sector_of_the_table) {
    const auto start = std::chrono::steady_clock::now();
    Storage root = Storage::openRoot(std::make_unique<LongStore>(), u"long"_s);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
    Storage good = goodFile().open();
    EXPECT_TRUE(readStream(root, u"small"_s) == readStream(good, u"small"_s));
}

TEST(Loader, refuses_to_change_a_damaged_file_and_leaves_it_as_it_is) {
    const QSet<qint64> told = {0, 58, 0x800300FB, 0x80030109};
    int refused = 0;
    for (const QString& name : regressions().entryList(QDir::Files)) {
        const MemoryCompound compound = fileNamed(regressions().filePath(name));
        const std::vector<std::byte> before = compound.file->bytes;
        const qint64 number = changeOf(compound);
        EXPECT_TRUE(told.contains(number)) << name.toStdString() << ": " << number;
        if (number == 0) {
            Storage root = compound.open();
            EXPECT_TRUE(readStream(root, u"new"_s) == testBytes(6000, 1)) << name.toStdString();
            continue;
        }
        ++refused;
        EXPECT_TRUE(compound.file->bytes == before) << name.toStdString();
    }
    EXPECT_GT(refused, 40);
}

TEST(Loader, accepts_and_mends_what_other_writers_leave) {
    int accepted = 0;
    for (const QString& name : regressions().entryList({u"accepted-*"_s}, QDir::Files)) {
        const MemoryCompound compound = fileNamed(regressions().filePath(name));
        EXPECT_EQ(changeOf(compound), 0) << name.toStdString();
        const CompoundCheck check = checkCompoundFile(compound.file->bytes, CheckMode::Strict);
        EXPECT_TRUE(check.complaints.empty()) << name.toStdString() << ": " << check.text();
        ++accepted;
    }
    EXPECT_EQ(accepted, 4);
}

TEST(Loader, reads_the_streams_that_damage_elsewhere_has_left) {
    Storage root = fileNamed(regressions().filePath(u"fat-chain-loops-over-several"_s)).open();
    Storage good = goodFile().open();
    EXPECT_TRUE(readStream(root, u"second big"_s) == readStream(good, u"second big"_s));
    EXPECT_TRUE(readStream(root, u"small"_s) == readStream(good, u"small"_s));
    Stream damaged = root.OpenStream(u"big"_s, Mode);
    QByteArray bytes;
    EXPECT_LT(damaged.ReadBuf(bytes, 9000), 9000);
}

TEST(Loader, opens_a_file_cut_off_anywhere_or_tells_why_not_and_never_changes_it) {
    const MemoryCompound good = goodFile();
    for (std::size_t length = 0; length < good.file->bytes.size(); length += 97) {
        MemoryCompound cut;
        cut.file->bytes.assign(good.file->bytes.begin(),
                               good.file->bytes.begin() + static_cast<std::ptrdiff_t>(length));
        const std::vector<std::byte> before = cut.file->bytes;
        const qint64 number = changeOf(cut);
        const qint64 expected = length < 8 ? 58 : length < 512 ? 0x800300FB : 0x80030109;
        // A cut within the last sector takes nothing but its unused rest.
        const bool isInLastSector = length + 512 >= good.file->bytes.size();
        EXPECT_TRUE(number == expected || isInLastSector) << length;
        EXPECT_TRUE(number == 0 || cut.file->bytes == before) << length;
    }
}

TEST(Loader, tells_58_for_an_empty_file_and_for_a_text) {
    MemoryCompound compound;
    EXPECT_EQ(errorOf([&] { (void)compound.open(); }), 58);
    compound.file->bytes.assign(5000, std::byte{'a'});
    EXPECT_EQ(errorOf([&] { (void)compound.open(); }), 58);
}

TEST(Loader, tells_the_place_of_the_damage) {
    Storage root = fileNamed(regressions().filePath(u"fat-chain-loops-over-several"_s)).open();
    try {
        (void)root.CreateStream(u"new"_s, Mode);
        FAIL() << "no error";
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), 0x80030109);
        EXPECT_GT(error.offset(), 0);
    }
}

TEST(Loader, survives_every_single_changed_byte) {
    const MemoryCompound good = goodFile();
    for (std::size_t place = 0; place < good.file->bytes.size(); ++place) {
        const MemoryCompound damaged = MemoryCompound::of(good.file->bytes);
        damaged.file->bytes[place] ^= std::byte{0xFF};
        const std::vector<std::byte> before = damaged.file->bytes;
        const qint64 number = changeOf(damaged);
        ASSERT_TRUE(number == 0 || damaged.file->bytes == before) << place;
        ASSERT_TRUE(number != 0 || errorOf([&] { (void)damaged.open(); }) == 0) << place;
    }
}
