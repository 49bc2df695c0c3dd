#include "support/CompoundChecker.h"
#include "support/CompoundTesting.h"
#include "support/PrintQt.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// What a file should hold: the streams of the root and of its storage "Pictures", by path.
using Contents = std::map<QString, QByteArray>;

/// One thing that a save does, and the streams that are under the pen while it does it.
struct Step {
    std::set<QString> touched;
    std::function<void(Storage&)> act;
    std::function<void(Contents&)> expect;
};

Storage folderOf(Storage& root, const QString& path) {
    return path.contains(u'/') ? root.CreateStorage(path.section(u'/', 0, 0), Mode) : root;
}

Step writeOver(const QString& path, int size, int seed) {
    return {{path},
            [=](Storage& root) {
                Storage folder = folderOf(root, path);
                Stream stream = folder.CreateStream(path.section(u'/', -1), Mode);
                const QByteArray bytes = testBytes(size, seed);
                // As a project writes: some small fields and then one array.
                for (int i = 0; i < 40 && i < size; ++i)
                    stream.WriteData(static_cast<quint8>(bytes[i]));
                if (size > 40 && stream.WriteBuf(bytes.mid(40)) != size - 40)
                    root.Commit(0); // raises what the array noted
            },
            [=](Contents& contents) {
                const QByteArray bytes = testBytes(size, seed);
                contents[path] = bytes + contents[path].mid(bytes.size());
            }};
}

Step destroy(const QString& name) {
    return {{name},
            [=](Storage& root) { root.DestroyElement(name); },
            [=](Contents& contents) { contents.erase(name); }};
}

Step rename(const QString& name, const QString& newName) {
    return {{name, newName},
            [=](Storage& root) { root.RenameElement(name, newName); },
            [=](Contents& contents) {
                contents[newName] = contents[name];
                contents.erase(name);
            }};
}

Step moveToPictures(const QString& name) {
    const QString path = u"Pictures/"_s + name;
    return {{name, path},
            [=](Storage& root) {
                Storage pictures = root.CreateStorage(u"Pictures"_s, Mode);
                root.MoveElementTo(name, pictures, name, StorageMode::Move);
            },
            [=](Contents& contents) {
                contents[path] = contents[name];
                contents.erase(name);
            }};
}

Step setSize(const QString& name, int size) {
    return {{name},
            [=](Storage& root) { root.OpenStream(name, Mode).SetSize(size); },
            [=](Contents& contents) {
                QByteArray& bytes = contents[name];
                bytes = bytes.left(size) +
                        QByteArray(std::max<qsizetype>(0, size - bytes.size()), '\0');
            }};
}

std::vector<Step> olderSave() {
    std::vector<Step> steps;
    for (int i = 1; i <= 12; ++i)
        steps.push_back(writeOver(u"Section %1"_s.arg(i), 150 * i * i % 9000, i));
    for (int i = 0; i < 3; ++i)
        steps.push_back(writeOver(u"Pictures/Index %1"_s.arg(i), 30000 * i + 100, 50 + i));
    return steps;
}

/// A save over the older one: every stream longer or shorter, over the cutoff and below it, and
/// every other kind of change.
std::vector<Step> newerSave() {
    std::vector<Step> steps;
    for (int i = 1; i <= 12; ++i)
        steps.push_back(writeOver(u"Section %1"_s.arg(i), 400 * ((i * 7) % 13) + 60, 100 + i));
    steps.push_back(writeOver(u"Section Verify"_s, 14, 200));
    for (int i = 0; i < 4; ++i)
        steps.push_back(writeOver(u"Pictures/Index %1"_s.arg(i), 40000 - 9000 * i, 250 + i));
    steps.push_back(setSize(u"Section 3"_s, 50));
    steps.push_back(setSize(u"Section 4"_s, 9000));
    steps.push_back(rename(u"Section 5"_s, u"a longer name than before"_s));
    steps.push_back(moveToPictures(u"Section 6"_s));
    steps.push_back(destroy(u"Section 7"_s));
    steps.push_back(destroy(u"Section 12"_s));
    for (int i = 1; i <= 20; ++i)
        steps.push_back(writeOver(u"More %1"_s.arg(i), 70 * i, 300 + i));
    for (int i = 1; i <= 20; i += 2)
        steps.push_back(destroy(u"More %1"_s.arg(i)));
    steps.push_back(setSize(u"Section 8"_s, 0));
    return steps;
}

void read(Storage storage, const QString& prefix, Contents& contents) {
    for (const VBSTATSTG& element : storage.Elements()) {
        if (element.StorageType() == VBSTATSTG::StreamElement)
            contents[prefix + element.Name()] = readStream(storage, element.Name());
        else
            read(storage.OpenStorage(element.Name(), Mode), prefix + element.Name() + u'/',
                 contents);
    }
}

/// The file opens, passes the checker, and holds `expected` but for the touched streams.
void expectWhole(const std::vector<std::byte>& bytes, const Contents& expected,
                 const std::set<QString>& touched) {
    const CompoundCheck check = checkCompoundFile(bytes, CheckMode::AfterStop);
    ASSERT_TRUE(check.complaints.empty()) << check.text();
    Contents found;
    read(MemoryCompound::of(bytes).open(), QString(), found);
    for (const auto& [path, content] : expected) {
        const bool isWhole = found.contains(path) && found[path] == content;
        ASSERT_TRUE(isWhole || touched.contains(path)) << path.toStdString();
    }
    for (const auto& [path, content] : found)
        ASSERT_TRUE(expected.contains(path) || touched.contains(path)) << path.toStdString();
}

class FaultInjection : public testing::Test {
protected:
    FaultInjection() {
        Storage root = older_.create();
        for (const Step& step : olderSave()) {
            step.act(root);
            step.expect(olderContents_);
        }
    }

    [[nodiscard]] MemoryCompound copyOfOlder() const {
        return MemoryCompound::of(older_.file->bytes);
    }

    [[nodiscard]] std::size_t writesOfNewerSave() const {
        const MemoryCompound compound = copyOfOlder();
        Storage root = compound.open();
        for (const Step& step : newerSave())
            step.act(root);
        root.Commit(0);
        return compound.file->writes;
    }

    MemoryCompound older_;
    Contents olderContents_;
};

} // namespace

TEST_F(FaultInjection, a_file_stopped_at_any_write_opens_with_every_other_stream_whole) {
    const MemoryCompound compound = copyOfOlder();
    Contents expected = olderContents_;
    std::set<QString> touched;
    std::size_t stops = 0;
    compound.file->afterWrite = [&] {
        ++stops;
        expectWhole(compound.file->bytes, expected, touched);
    };
    Storage root = compound.open();
    for (const Step& step : newerSave()) {
        touched = step.touched;
        step.act(root);
        root.Commit(0);
        if (HasFatalFailure())
            return;
        step.expect(expected);
        expectWhole(compound.file->bytes, expected, {});
    }
    EXPECT_GT(stops, 300U);
    const CompoundCheck check = checkCompoundFile(compound.file->bytes, CheckMode::Strict);
    EXPECT_TRUE(check.complaints.empty()) << check.text();
}

TEST_F(FaultInjection, a_new_file_stopped_at_any_write_opens) {
    const MemoryCompound compound;
    std::size_t stops = 0;
    Contents expected;
    std::set<QString> touched;
    compound.file->afterWrite = [&] {
        ++stops;
        expectWhole(compound.file->bytes, expected, touched);
    };
    Storage root = compound.create();
    EXPECT_EQ(stops, 1U) << "a new file is one write";
    for (const Step& step : olderSave()) {
        touched = step.touched;
        step.act(root);
        step.expect(expected);
    }
}

TEST_F(FaultInjection, a_save_that_stops_at_any_failed_write_tells_it_and_leaves_the_rest_whole) {
    const std::size_t writes = writesOfNewerSave();
    ASSERT_GT(writes, 300U);
    for (std::size_t n = 0; n < writes; ++n) {
        const MemoryCompound compound = copyOfOlder();
        compound.file->failingWrite = n;
        compound.file->writtenBeforeFail = n % 3 == 0 ? 100 : 0;
        Contents expected = olderContents_;
        std::set<QString> touched;
        qint64 number = 0;
        try {
            Storage root = compound.open();
            for (const Step& step : newerSave()) {
                touched = step.touched;
                step.act(root);
                root.Commit(0);
                step.expect(expected);
            }
        } catch (const Error& error) {
            number = error.number();
        }
        ASSERT_EQ(number, 0x8003001D) << "write " << n;
        // A torn write of a single sector does not happen; of the bytes of a stream it may.
        if (compound.file->writtenBeforeFail == 0)
            expectWhole(compound.file->bytes, expected, touched);
        ASSERT_FALSE(HasFatalFailure()) << "write " << n;
    }
}

TEST_F(FaultInjection, a_save_that_goes_on_after_any_failed_write_leaves_all_other_streams_whole) {
    const std::size_t writes = writesOfNewerSave();
    for (std::size_t n = 0; n < writes; ++n) {
        const MemoryCompound compound = copyOfOlder();
        compound.file->failingWrite = n;
        Contents expected = olderContents_;
        std::set<QString> doubtful;
        {
            Storage root = compound.open();
            for (const Step& step : newerSave()) {
                bool isDoubtful = std::ranges::any_of(
                    step.touched, [&](const QString& path) { return doubtful.contains(path); });
                try {
                    step.act(root);
                    root.Commit(0);
                } catch (const Error&) {
                    isDoubtful = true;
                }
                // What is made of a doubtful stream is doubtful as well.
                if (isDoubtful)
                    doubtful.insert(step.touched.begin(), step.touched.end());
                step.expect(expected);
            }
        }
        expectWhole(compound.file->bytes, expected, doubtful);
        ASSERT_FALSE(HasFatalFailure()) << "write " << n;
    }
}

TEST_F(FaultInjection, a_disk_that_fills_up_is_told_and_leaves_a_file_that_opens) {
    const std::size_t size = older_.file->bytes.size();
    for (std::size_t limit = size; limit < size + 60000; limit += 700) {
        const MemoryCompound compound = copyOfOlder();
        compound.file->sizeLimit = limit;
        Contents expected = olderContents_;
        std::set<QString> touched;
        qint64 number = 0;
        try {
            Storage root = compound.open();
            for (const Step& step : newerSave()) {
                touched = step.touched;
                step.act(root);
                root.Commit(0);
                step.expect(expected);
            }
        } catch (const Error& error) {
            number = error.number();
        }
        EXPECT_EQ(number, 0x80030070) << limit;
        expectWhole(compound.file->bytes, expected, touched);
        ASSERT_FALSE(HasFatalFailure()) << limit;
    }
}

TEST_F(FaultInjection, sectors_that_a_stop_left_behind_are_used_by_the_next_writer) {
    std::vector<std::byte> stopped;
    std::size_t leaked = 0;
    const MemoryCompound compound = copyOfOlder();
    compound.file->afterWrite = [&] {
        const CompoundCheck check = checkCompoundFile(compound.file->bytes, CheckMode::AfterStop);
        if (check.leakedSectors <= leaked)
            return;
        leaked = check.leakedSectors;
        stopped = compound.file->bytes;
    };
    {
        Storage root = compound.open();
        writeStream(root, u"Section 1"_s, testBytes(60000, 1));
    }
    ASSERT_GT(leaked, 50U);
    const MemoryCompound next = MemoryCompound::of(stopped);
    Storage root = next.open();
    writeStream(root, u"Section 1"_s, testBytes(60000, 1));
    root.Commit(0);
    EXPECT_EQ(next.file->bytes.size(), compound.file->bytes.size());
    EXPECT_EQ(checkCompoundFile(next.file->bytes, CheckMode::AfterStop).leakedSectors, 0U);
}
