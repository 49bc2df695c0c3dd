#include "persistence/session/ShadowCopy.h"

#include "persistence/compound/FileByteStore.h"
#include "support/ErrorOf.h"
#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/PrintQt.h"

#include <QTemporaryDir>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class ShadowCopyTest : public testing::Test {
protected:
    ShadowCopyTest() {
        writeFile(copy, "as it was opened");
        writeFile(target, "as it was opened, saved earlier");
    }

    /// From here on there is something to take back.
    void autosave() { writeFile(target, "as it was saved by the timer"); }

    QTemporaryDir folder;
    QString copy = folder.filePath(u"copy.ivd"_s);
    QString target = folder.filePath(u"easel.ivd"_s);
    ShadowCopy shadow;
};

} // namespace

TEST_F(ShadowCopyTest, what_this_run_wrote_is_put_back) {
    shadow.remember(copy, target);
    autosave();
    EXPECT_TRUE(shadow.isOwn(copy));
    shadow.putBack(copy, target);
    EXPECT_EQ(contentOf(target), "as it was opened");
}

TEST_F(ShadowCopyTest, a_project_that_was_deleted_comes_back) {
    shadow.remember(copy, target);
    ASSERT_TRUE(QFile::remove(target));
    shadow.putBack(copy, target);
    EXPECT_EQ(contentOf(target), "as it was opened");
}

TEST_F(ShadowCopyTest, what_this_run_did_not_write_is_not_put_back) {
    autosave();
    EXPECT_FALSE(shadow.isOwn(copy));
    errorOf([&] { shadow.putBack(copy, target); });
    EXPECT_EQ(contentOf(target), "as it was saved by the timer");
}

TEST_F(ShadowCopyTest, another_content_of_the_same_length_is_not_this_runs_own) {
    shadow.remember(copy, target);
    writeFile(copy, "as it was OPENED");
    autosave();
    EXPECT_FALSE(shadow.isOwn(copy));
    errorOf([&] { shadow.putBack(copy, target); });
    EXPECT_EQ(contentOf(target), "as it was saved by the timer");
}

TEST_F(ShadowCopyTest, a_copy_that_is_forgotten_is_not_put_back) {
    shadow.remember(copy, target);
    shadow.forget();
    EXPECT_FALSE(shadow.isOwn(copy));
    errorOf([&] { shadow.putBack(copy, target); });
}

TEST_F(ShadowCopyTest, a_copy_that_has_gone_is_an_error) {
    shadow.remember(copy, target);
    ASSERT_TRUE(QFile::remove(copy));
    EXPECT_FALSE(shadow.isOwn(copy));
    errorOf([&] { shadow.putBack(copy, target); });
    errorOf([&] { shadow.remember(copy, target); });
}

TEST_F(ShadowCopyTest, a_target_that_cannot_be_written_stays_as_it_was) {
    writeFile(copy, QByteArray(5000, 'x'));
    shadow.remember(copy, target);
    autosave();
    {
        const FullDisk full(1000);
        errorOf([&] { shadow.putBack(copy, target); });
    }
    EXPECT_EQ(contentOf(target), "as it was saved by the timer");
    EXPECT_TRUE(shadow.isOwn(copy));
}

TEST_F(ShadowCopyTest, a_target_that_another_program_is_writing_stays_its) {
    shadow.remember(copy, target);
    autosave();
    {
        const auto elsewhere = FileByteStore::open(target);
        EXPECT_EQ(errorOf([&] { shadow.putBack(copy, target); }).description(),
                  u"The file is in use.");
        EXPECT_EQ(contentOf(target), "as it was saved by the timer");
    }
    shadow.putBack(copy, target);
    EXPECT_EQ(contentOf(target), "as it was opened");
}

TEST_F(ShadowCopyTest, its_own_copy_is_deleted_and_that_of_another_program_is_not) {
    shadow.remember(copy, target);
    shadow.deleteCopy(copy);
    EXPECT_FALSE(QFile::exists(copy));
    writeFile(copy, "another program's");
    shadow.deleteCopy(copy);
    EXPECT_TRUE(QFile::exists(copy));
}

TEST_F(ShadowCopyTest, a_project_that_was_not_saved_meanwhile_is_not_touched) {
    shadow.remember(copy, target);
    shadow.putBack(copy, target);
    EXPECT_EQ(contentOf(target), "as it was opened, saved earlier");
}
