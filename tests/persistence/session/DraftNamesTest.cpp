#include "persistence/session/DraftNames.h"

#include "support/FakeFolders.h"
#include "support/FakeSettings.h"
#include "support/Files.h"
#include "support/PrintQt.h"

#include <QTemporaryDir>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class DraftNamesTest : public testing::Test {
protected:
    DraftNamesTest() { folders.documents = home.path(); }

    QString draft() { return names.newDraftFileName(QDate(2026, 3, 7)); }

    QString inDrafts(const QString& name) const {
        return home.filePath(u"Quillford/Drafts/"_s + name);
    }

    QTemporaryDir home;
    FakeSettings store;
    Settings settings{store};
    FakeFolders folders;
    WorkFolders workFolders{settings, folders};
    ProjectFields fields;
    DraftNames names{fields, workFolders};
};

} // namespace

TEST_F(DraftNamesTest, a_draft_bears_the_file_number_and_the_day) {
    fields.txtFileNo.setText(u" QF-101 "_s);
    EXPECT_EQ(draft(), inDrafts(u"Provisional Project [QF-101] (03-07-2026).ivd"_s));
    writeFile(draft());
    EXPECT_EQ(draft(), inDrafts(u"Provisional Project [QF-101] (03-07-2026).ivd"_s));
}

TEST_F(DraftNamesTest, without_a_file_number_a_draft_gets_the_first_free_one_behind_two_blanks) {
    EXPECT_EQ(draft(), inDrafts(u"Draft -  1.ivd"_s));
    writeFile(draft());
    EXPECT_EQ(draft(), inDrafts(u"Draft -  2.ivd"_s));
}

TEST_F(DraftNamesTest, a_thousand_drafts_leave_no_name) {
    for (int i = 1; i <= 1000; ++i)
        writeFile(inDrafts(u"Draft -  %1.ivd"_s.arg(i)));
    EXPECT_EQ(draft(), u"");
}

TEST_F(DraftNamesTest, a_shadow_bears_the_file_number) {
    fields.txtFileNo.setText(u" QF/101 "_s);
    EXPECT_EQ(names.newShadowFileName(), inDrafts(u"Project - QF-101.ivd"_s));
}

TEST_F(DraftNamesTest, without_a_file_number_a_shadow_is_free_in_the_folder_used_last) {
    const QString last = home.filePath(u"Sketches"_s);
    writeFile(last + u"/Project - 1.ivd"_s);
    workFolders.setLastDir(last);
    writeFile(inDrafts(u"Project - 2.ivd"_s));
    EXPECT_EQ(names.newShadowFileName(), inDrafts(u"Project - 2.ivd"_s));
}

TEST_F(DraftNamesTest, a_long_number_still_leaves_the_day_and_the_ending) {
    fields.txtFileNo.setText(QString(500, u'7'));
    EXPECT_TRUE(draft().endsWith(u"7] (03-07-2026).ivd"_s));
    EXPECT_EQ(QFileInfo(draft()).fileName().size(), 200);
}
