#include "base/Files.h"

#include "support/ErrorOf.h"
#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/PrintQt.h"

#include <QTemporaryDir>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class Files : public testing::Test {
protected:
    QStringList names() const {
        return QDir(folder.path())
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"file"_s);
};

} // namespace

TEST_F(Files, a_replaced_file_holds_the_new_bytes_alone) {
    writeFile(path, "the old and longer content");
    replaceFile(path, "new");
    EXPECT_EQ(contentOf(path), "new");
    EXPECT_EQ(names(), QStringList({u"file"_s}));
}

TEST_F(Files, a_file_that_is_missing_is_made) {
    replaceFile(path, "new");
    EXPECT_EQ(contentOf(path), "new");
}

TEST_F(Files, a_full_disk_leaves_the_old_file) {
    writeFile(path, "old");
    {
        const FullDisk full(1000);
        EXPECT_EQ(errorOf([&] { replaceFile(path, QByteArray(2000, 'x')); }).source(), path);
    }
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(names(), QStringList({u"file"_s}));
}

TEST_F(Files, a_file_takes_the_place_of_another_or_says_why_not) {
    const QString made = folder.filePath(u"made"_s);
    writeFile(path, "old");
    writeFile(made, "new");
    takePlaceOf(made, path);
    EXPECT_EQ(contentOf(path), "new");
    EXPECT_EQ(names(), QStringList({u"file"_s}));
    EXPECT_EQ(errorOf([&] { takePlaceOf(made, path); }).source(), path);
}

TEST_F(Files, why_one_was_not_written_is_told_by_what_stands_in_its_way) {
    const Error failure(13, u"Permission denied"_s);
    EXPECT_EQ(reasonNotWritten(path, failure), u"Permission denied"_s);
    EXPECT_EQ(reasonNotWritten(path, Error(28, u"No space left on device"_s)), u"disk full"_s);
    EXPECT_EQ(reasonNotWritten(folder.path(), failure), u"a folder has this name"_s);
    EXPECT_EQ(reasonNotWritten(folder.filePath(u"none/file"_s), failure),
              u"folder does not exist"_s);
}
