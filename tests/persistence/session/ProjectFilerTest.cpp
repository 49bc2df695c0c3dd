#include "persistence/session/SessionFixture.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class ProjectFilerTest : public SessionFixture {
protected:
    void openEasel() {
        easel = makeProject(inProjects(u"easel.ivd"_s), u"QF-1"_s, u"It folds."_s);
        EXPECT_TRUE(filer.OpenFile(easel));
        copy = project.state.shadowFileName;
    }

    void autosave(const QString& text) {
        type(text);
        waitForAutosave();
        EXPECT_EQ(operationIn(easel), text);
    }

    QString easel;
    QString copy;
};

} // namespace

TEST_F(ProjectFilerTest, putting_back_takes_back_every_autosave) {
    openEasel();
    type(project.fields.txtFileNo, u"changed"_s);
    autosave(u"It unfolds."_s);
    EXPECT_TRUE(filer.putShadowBack());
    EXPECT_EQ(operationIn(easel), u"It folds.");
    EXPECT_EQ(listed(), QStringList({easel + u"|QF-1|"_s}));
    EXPECT_EQ(project.state.shadowFileName, u"");
    EXPECT_EQ(drafts(), QStringList());
    EXPECT_EQ(boxes(), QStringList());
}

TEST_F(ProjectFilerTest, a_project_that_was_never_saved_meanwhile_keeps_its_very_bytes) {
    openEasel();
    const QByteArray before = contentOf(easel);
    type(u"It unfolds."_s);
    EXPECT_TRUE(filer.putShadowBack());
    EXPECT_EQ(contentOf(easel), before);
    EXPECT_EQ(drafts(), QStringList());
}

TEST_F(ProjectFilerTest, a_copy_that_another_program_wrote_is_not_put_back_and_stays) {
    openEasel();
    autosave(u"It unfolds."_s);
    makeProject(copy, u"QF-1"_s, u"of another program"_s);
    EXPECT_TRUE(filer.putShadowBack());
    EXPECT_EQ(operationIn(easel), u"It unfolds.");
    EXPECT_EQ(boxes(), QStringList({u"Error"_s}));
    filer.deleteShadow();
    EXPECT_EQ(operationIn(copy), u"of another program");
    EXPECT_EQ(project.state.shadowFileName, u"");
}

TEST_F(ProjectFilerTest, a_copy_that_has_gone_is_told) {
    openEasel();
    autosave(u"It unfolds."_s);
    ASSERT_TRUE(QFile::remove(copy));
    EXPECT_TRUE(filer.putShadowBack());
    EXPECT_EQ(operationIn(easel), u"It unfolds.");
    EXPECT_EQ(boxes().size(), 1);
}

TEST_F(ProjectFilerTest, a_copy_that_cannot_be_put_back_is_kept) {
    openEasel();
    autosave(u"It unfolds."_s);
    {
        const FullDisk full(1000);
        EXPECT_FALSE(filer.putShadowBack());
    }
    EXPECT_EQ(boxes(), QStringList({u"Error"_s}));
    EXPECT_EQ(operationIn(easel), u"It unfolds.");
    EXPECT_EQ(project.state.shadowFileName, copy);
    EXPECT_TRUE(filer.putShadowBack());
    EXPECT_EQ(operationIn(easel), u"It folds.");
}

TEST_F(ProjectFilerTest, without_a_shadow_there_is_nothing_to_put_back) {
    EXPECT_TRUE(filer.putShadowBack());
    filer.deleteShadow();
    filer.updateShadow();
    EXPECT_EQ(boxes(), QStringList());
}

TEST_F(ProjectFilerTest, the_shadow_follows_a_save_by_the_user) {
    openEasel();
    autosave(u"It unfolds."_s);
    EXPECT_EQ(operationIn(copy), u"It folds.");
    filer.updateShadow();
    EXPECT_EQ(operationIn(copy), u"It unfolds.");
    EXPECT_TRUE(shadow.isOwn(copy));
    EXPECT_EQ(names3(), std::tuple(easel, u""_s, copy));
}

TEST_F(ProjectFilerTest, a_shadow_that_could_not_follow_is_never_put_back) {
    openEasel();
    autosave(u"It unfolds."_s);
    {
        const FullDisk full(1000);
        EXPECT_THROW(filer.updateShadow(), Error);
    }
    EXPECT_TRUE(filer.putShadowBack());
    EXPECT_EQ(operationIn(easel), u"It unfolds.");
    EXPECT_EQ(boxes().size(), 1);
}

TEST_F(ProjectFilerTest, a_draft_is_deleted_in_its_folder_only) {
    writeFile(inDrafts(u"a.ivd"_s));
    writeFile(inProjects(u"b.ivd"_s));
    project.state.draftFileName = inDrafts(u"a.ivd"_s);
    filer.deleteDraft();
    EXPECT_EQ(project.state.draftFileName, u"");
    project.state.draftFileName = inProjects(u"b.ivd"_s);
    filer.deleteDraft();
    EXPECT_EQ(project.state.draftFileName, u"");
    EXPECT_EQ(drafts(), QStringList());
    EXPECT_TRUE(QFile::exists(inProjects(u"b.ivd"_s)));
}

TEST_F(ProjectFilerTest, a_dropped_draft_leaves_the_list_and_brings_the_oldest_back) {
    const QStringList five{u"/p/a.ivd||"_s, u"/p/b.ivd||"_s, u"/p/c.ivd||"_s, u"/p/d.ivd||"_s,
                           u"/p/e.ivd||"_s};
    for (int i = 0; i < 5; ++i)
        settings.regWrite(Hive::CurrentUser, settingsNames::SettingsKey, u"file%1"_s.arg(i + 1),
                          five[i]);
    type(u"I"_s);
    waitForAutosave();
    EXPECT_EQ(listed().size(), 5);
    EXPECT_EQ(listed()[0], project.state.draftFileName + u"|||FILEOPEN"_s);
    filer.dropDraft();
    EXPECT_EQ(listed(), five);
    EXPECT_EQ(drafts(), QStringList());
    EXPECT_EQ(project.state.draftFileName, u"");
}
