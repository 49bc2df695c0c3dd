#include "persistence/project/ProjectFileFixture.h"
#include "persistence/project/ProjectReader.h"
#include "support/CompoundChecker.h"
#include "support/MemoryByteStore.h"
#include "support/ProjectMaker.h"

#include <map>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

using Contents = std::map<QString, QByteArray>;
using File = std::shared_ptr<MemoryFile>;

/// The streams of a project file in the order in which a save writes them.
QStringList streamsInOrder(int pictures) {
    QStringList names{u"Section Version"_s};
    for (int section = 1; section <= 8; ++section)
        names.append(u"Section %1"_s.arg(section));
    names.append(u"Section Verify"_s);
    for (int i = 0; i < pictures; ++i)
        names.append(u"Pictures/Index %1"_s.arg(i));
    return names;
}

QByteArray contentOf(Storage& storage, const QString& name) {
    Stream stream = storage.OpenStream(name, StorageMode::Exclusive);
    QByteArray bytes;
    stream.ReadBuf(bytes, static_cast<qint32>(stream.Stat().Size()));
    return bytes;
}

Storage open(const File& file) {
    return Storage::openRoot(std::make_unique<MemoryByteStore>(file), u"memory"_s);
}

void gather(Storage storage, const QString& prefix, Contents& contents) {
    for (const VBSTATSTG& element : storage.Elements()) {
        if (element.StorageType() == VBSTATSTG::StreamElement)
            contents[prefix + element.Name()] = contentOf(storage, element.Name());
        else
            gather(storage.OpenStorage(element.Name(), StorageMode::Exclusive),
                   prefix + element.Name() + u'/', contents);
    }
}

Contents contentsOf(const File& file) {
    Contents contents;
    gather(open(file), QString(), contents);
    return contents;
}

/// A save of the sample over another project, which lies in memory.
class ProjectFileFault : public ProjectFileFixture {
protected:
    void SetUp() override {
        ProjectFileFixture::SetUp();
        readProject(
            QStringLiteral(QUILLFORD_SOURCE_DIR "/samples/folding-easel/folding-easel.json"),
            sample);
        ASSERT_EQ(sample.fields.cboFiguresNum.text(), u"5"_s);
        makeOlder();
        const File saved = copyOfOlder();
        save(saved);
        writes = saved->writes;
        newContents = contentsOf(saved);
        ASSERT_GT(writes, 30U);
    }

    void makeOlder() {
        Project project;
        ProjectMaker(5).fill(project);
        attachFigures(project, 3);
        for (int i = 0; i < 3; ++i)
            makeFile(u"fig%1.png"_s.arg(i), QByteArray(40000 * i + 300, 'o'));
        Storage root = Storage::createRoot(std::make_unique<MemoryByteStore>(older), u"memory"_s);
        CreatePropertySets(root, true);
        ProjectWriter(project, prompts).write(root);
        root = Storage();
        olderContents = contentsOf(older);
    }

    [[nodiscard]] File copyOfOlder() const {
        auto file = std::make_shared<MemoryFile>();
        file->bytes = older->bytes;
        return file;
    }

    void save(const File& file) {
        Storage root = open(file);
        ProjectWriter(sample, prompts).write(root);
    }

    /// The number of the error with which a save ends; 0 for none.
    qint64 failureOfSave(const File& file) {
        try {
            save(file);
            return 0;
        } catch (const Error& error) {
            return error.number();
        }
    }

    /// The streams up to some place are the new ones and those behind it the old ones; the one at
    /// that place was under the pen.
    void expectNewThenOld(const File& file) const {
        const CompoundCheck check = checkCompoundFile(file->bytes, CheckMode::AfterStop);
        ASSERT_TRUE(check.complaints.empty()) << check.text();
        Contents found = contentsOf(file);
        QStringList names = streamsInOrder(5);
        while (!names.isEmpty() && isSame(found, newContents, names.first()))
            found.erase(names.takeFirst());
        if (!names.isEmpty())
            found.erase(names.takeFirst());
        for (const QString& name : names)
            EXPECT_TRUE(isSame(found, olderContents, name)) << qPrintable(name);
        for (const auto& [name, content] : found) // the property sets are among them
            EXPECT_TRUE(isSame(found, olderContents, name)) << qPrintable(name);
    }

    /// A file in memory, given to the reader as a file on disk.
    ReadReport readFrom(const File& memory, Project& project) {
        makeFile(u"project.ivd"_s, QByteArray(reinterpret_cast<const char*>(memory->bytes.data()),
                                              static_cast<qsizetype>(memory->bytes.size())));
        return read(project);
    }

    Project sample;
    File older = std::make_shared<MemoryFile>();
    Contents olderContents;
    Contents newContents;
    std::size_t writes = 0;

private:
    static bool isSame(const Contents& left, const Contents& right, const QString& name) {
        const auto here = left.find(name);
        const auto there = right.find(name);
        if (here == left.end() || there == right.end())
            return here == left.end() && there == right.end();
        return here->second == there->second;
    }
};

} // namespace

TEST_F(ProjectFileFault, starts_from_two_projects_that_differ_in_every_section) {
    for (int section = 1; section <= 8; ++section) {
        const QString name = u"Section %1"_s.arg(section);
        EXPECT_NE(olderContents.at(name), newContents.at(name)) << section;
    }
    EXPECT_FALSE(olderContents.contains(u"Pictures/Index 4"_s));
    EXPECT_TRUE(newContents.contains(u"Pictures/Index 4"_s));
}

TEST_F(ProjectFileFault, tells_of_any_failed_write_and_leaves_each_section_old_or_new) {
    for (std::size_t n = 0; n < writes; ++n) {
        SCOPED_TRACE(n);
        const File file = copyOfOlder();
        file->failingWrite = n;
        ASSERT_EQ(failureOfSave(file), 0x8003001D);
        expectNewThenOld(file);
        Project opened;
        ASSERT_EQ(readFrom(file, opened).outcome, ReadReport::Outcome::Read);
        ASSERT_FALSE(HasFailure());
    }
}

TEST_F(ProjectFileFault, tells_of_a_disk_that_stays_broken_from_any_write_on) {
    for (std::size_t n = 0; n < writes; ++n) {
        SCOPED_TRACE(n);
        const File file = copyOfOlder();
        file->failingWrite = n;
        file->failsForEver = true;
        ASSERT_EQ(failureOfSave(file), 0x8003001D);
        expectNewThenOld(file);
        ASSERT_FALSE(HasFailure());
    }
}

TEST_F(ProjectFileFault, completes_a_failed_save_at_the_next) {
    for (std::size_t n = 0; n < writes; ++n) {
        SCOPED_TRACE(n);
        const File file = copyOfOlder();
        file->failingWrite = n;
        ASSERT_NE(failureOfSave(file), 0);
        file->failingWrite = MemoryFile::Never;
        ASSERT_EQ(failureOfSave(file), 0);
        Project opened;
        const ReadReport report = readFrom(file, opened);
        ASSERT_EQ(report.outcome, ReadReport::Outcome::Read);
        ASSERT_TRUE(report.missing.isEmpty());
        for (const FieldRow& row : fieldTable())
            for (int i = 0; i < sample.fields.count(row.id); ++i)
                ASSERT_EQ(opened.fields.at(row.id, i).text(),
                          sample.fields.at(row.id, i).trimmedText());
    }
}
