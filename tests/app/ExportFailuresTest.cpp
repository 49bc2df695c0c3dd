#include "app/ProgramFixture.h"
#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/SmallDisk.h"

#include <QAbstractButton>
#include <QLabel>

using namespace quillford;

namespace {

/// Exports into folders that take no file.
class ExportFailuresTest : public ProgramFixture {
protected:
    /// Exports the page of the sample into a folder, which is the same after it, and tells what the
    /// window says then.
    QString lineAfterExport(const QString& folder, const QString& name = u"draft.htm"_s) {
        const QStringList before = contentsOf(folder);
        startWithSample();
        click(u"picTab(8)"_s);
        whenAsked(u"Verify Final Draft?"_s, presses(u"cmdSkip"_s));
        whenAskedForFile(folder + u'/' + name);
        click(u"imgCreateToFile(2)"_s);
        EXPECT_EQ(contentsOf(folder), before) << "nothing half-written stays";
        EXPECT_FALSE(QFile::exists(place(u"opened"_s)));
        EXPECT_NE(form().cursor().shape(), Qt::WaitCursor);
        EXPECT_LE(line().heightForWidth(line().width()), line().height()) << "the words find room";
        return line().text();
    }

    [[nodiscard]] QLabel& line() { return control<QLabel>(u"lblSaveState"_s); }

    [[nodiscard]] static QStringList contentsOf(const QString& folder) {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
};

} // namespace

TEST_F(ExportFailuresTest, a_read_only_folder_is_told) {
    const SmallDisk disk(place(u"fixed"_s), 4);
    if (!disk.isThere())
        GTEST_SKIP() << NoSmallDisk;
    disk.setWritable(false);
    EXPECT_EQ(lineAfterExport(place(u"fixed"_s)), u"not exported: folder is read-only"_s);
}

TEST_F(ExportFailuresTest, a_full_disk_is_told) {
    const SmallDisk disk(place(u"small"_s), 4);
    if (!disk.isThere())
        GTEST_SKIP() << NoSmallDisk;
    EXPECT_EQ(lineAfterExport(place(u"small"_s)), u"not exported: disk full"_s);
}

TEST_F(ExportFailuresTest, an_older_file_stays_on_a_full_disk) {
    const SmallDisk disk(place(u"small"_s), 8);
    if (!disk.isThere())
        GTEST_SKIP() << NoSmallDisk;
    const QString path = place(u"small/draft.htm"_s);
    writeFile(path, "old");
    whenAsked(u"Verify Final Draft?"_s, presses(u"cmdSkip"_s));
    startWithSample();
    click(u"picTab(8)"_s);
    whenAskedForFile(path);
    user.meets<QMessageBox>([](QMessageBox& box) {
        ModalUser::pressByKeys(box, box.button(QMessageBox::Yes)); // overwrite
    });
    click(u"imgCreateToFile(2)"_s);
    EXPECT_EQ(line().text(), u"not exported: disk full"_s);
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(contentsOf(place(u"small"_s)), QStringList{u"draft.htm"_s});
}

TEST_F(ExportFailuresTest, a_folder_that_is_gone_is_told_and_not_made) {
    EXPECT_EQ(lineAfterExport(place(u"gone"_s)), u"not exported: folder does not exist"_s);
    EXPECT_FALSE(QFile::exists(place(u"gone"_s)));
}

TEST_F(ExportFailuresTest, a_file_in_the_place_of_the_folder_is_told) {
    writeFile(place(u"file"_s), "mine");
    EXPECT_EQ(lineAfterExport(place(u"file"_s)), u"not exported: folder does not exist"_s);
    EXPECT_EQ(contentOf(place(u"file"_s)), "mine");
}

TEST_F(ExportFailuresTest, a_folder_in_the_place_of_the_file_is_told_and_stays) {
    QDir().mkpath(place(u"drafts/draft.htm"_s));
    EXPECT_EQ(lineAfterExport(place(u"drafts"_s), u"draft"_s),
              u"not exported: a folder has this name"_s);
}

TEST_F(ExportFailuresTest, an_export_that_goes_through_clears_what_was_told) {
    lineAfterExport(place(u"gone"_s));
    whenAsked(u"Verify Final Draft?"_s, presses(u"cmdSkip"_s));
    whenAskedForFile(place(u"draft.htm"_s));
    click(u"imgCreateToFile(2)"_s);
    EXPECT_EQ(line().text(), QString());
}
