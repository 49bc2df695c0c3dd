#include "persistence/session/Backups.h"

#include "persistence/session/SessionFixture.h"
#include "support/ErrorOf.h"
#include "support/PrintQt.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class BackupsTest : public SessionFixture {
protected:
    QString file(const QString& name, const QByteArray& content) const {
        const QString path = home.filePath(name);
        QFile::remove(path);
        writeFile(path, content);
        return path;
    }

    QStringList kept() const {
        return QDir(backups.folder()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    QByteArray contentOfKept(qsizetype index) const {
        return contentOf(backups.folder() + u'/' + kept().value(index));
    }

    /// What the newest backup of a session tells of the invention's operation.
    QString newestOperation() const {
        return kept().isEmpty() ? u"none"_s
                                : operationIn(backups.folder() + u'/' + kept().constLast());
    }
};

} // namespace

// The copies

TEST_F(BackupsTest, a_copy_has_the_files_name_and_the_time_and_its_bytes) {
    backups.keep(file(u"easel.ivd"_s, "text"));
    EXPECT_EQ(backups.folder(), home.filePath(u"state/Backups"_s));
    EXPECT_EQ(kept(), QStringList{u"easel (2026-03-14 15.09.00.000).ivd"_s});
    EXPECT_EQ(contentOfKept(0), "text");
}

TEST_F(BackupsTest, of_a_file_that_is_not_there_nothing_is_kept) {
    backups.keep(home.filePath(u"none.ivd"_s));
    EXPECT_FALSE(QFile::exists(backups.folder()));
}

TEST_F(BackupsTest, the_newest_twenty_of_a_name_are_kept_and_all_of_others) {
    const QString other = file(u"easel (2).ivd"_s, "other");
    backups.keep(other);
    for (int i = 0; i < 23; ++i) {
        backups.keep(file(u"easel.ivd"_s, QByteArray::number(i)));
        clock.date = clock.date.addSecs(1);
    }
    ASSERT_EQ(kept().size(), 21);
    EXPECT_EQ(kept().filter(u"easel ("_s).size(), 21);
    QStringList texts;
    for (const QString& name : kept())
        texts.append(QString::fromLatin1(contentOf(backups.folder() + u'/' + name)));
    EXPECT_FALSE(texts.contains(u"2"_s));
    EXPECT_TRUE(texts.contains(u"3"_s));
    EXPECT_TRUE(texts.contains(u"22"_s));
    EXPECT_TRUE(texts.contains(u"other"_s));
}

TEST_F(BackupsTest, a_clock_that_is_set_back_leaves_them_in_their_order) {
    for (int i = 0; i < 25; ++i) {
        backups.keep(file(u"easel.ivd"_s, QByteArray::number(i)));
        clock.date = clock.date.addDays(-1);
    }
    ASSERT_EQ(kept().size(), 20);
    EXPECT_EQ(contentOfKept(0), "5");
    EXPECT_EQ(contentOfKept(19), "24");
}

TEST_F(BackupsTest, a_name_may_hold_what_means_something_elsewhere_and_be_very_long) {
    for (const QString& name : {u"[*]?%1$ (yyyy).ivd"_s, QString(80, QChar(0x2202)) + u".ivd"_s,
                                u".hidden.ivd"_s, u"two.dots.ivd"_s}) {
        for (int i = 0; i < 22; ++i)
            backups.keep(file(name, "x"));
        EXPECT_EQ(kept().size(), 20) << qPrintable(name);
        QDir(backups.folder()).removeRecursively();
    }
}

TEST_F(BackupsTest, a_copy_that_cannot_be_made_is_an_error_and_the_older_ones_stay) {
    const QString path = file(u"easel.ivd"_s, "text");
    backups.keep(path);
    {
        const FullDisk disk(0);
        EXPECT_TRUE(errorOf([&] { backups.keep(path); }).source().contains(u"/Backups/easel ("_s));
    }
    EXPECT_EQ(kept().size(), 1);
    EXPECT_EQ(contentOfKept(0), "text");
}

// In a session

TEST_F(BackupsTest, the_first_save_of_the_timer_keeps_the_file_as_it_was_opened) {
    openFromDialog(makeProject(inProjects(u"easel.ivd"_s), u"A-1"_s, u"saved"_s));
    for (const QString& text : {u"first"_s, u"second"_s}) {
        type(text);
        waitForAutosave();
    }
    EXPECT_EQ(kept().size(), 1);
    EXPECT_EQ(newestOperation(), u"saved"_s);
    EXPECT_EQ(saveState.text, u"saved 15:09"_s);
}

TEST_F(BackupsTest, what_the_user_saved_is_kept_again_before_the_timer_goes_on) {
    openFromDialog(makeProject(inProjects(u"easel.ivd"_s), u"A-1"_s, u"saved"_s));
    type(u"mine"_s);
    commands.mnuFileSave_Click();
    type(u"the timer's"_s);
    waitForAutosave();
    EXPECT_EQ(newestOperation(), u"mine"_s);
}

TEST_F(BackupsTest, a_project_without_a_shadow_is_kept_too) {
    type(u"mine"_s);
    saveUnder(inProjects(u"new.ivd"_s));
    EXPECT_EQ(kept(), QStringList());
    type(u"the timer's"_s);
    waitForAutosave();
    EXPECT_EQ(newestOperation(), u"mine"_s);
}

TEST_F(BackupsTest, opening_the_same_file_without_saving_keeps_the_saved_state) {
    const QString path = makeProject(inProjects(u"easel.ivd"_s), u"A-1"_s, u"saved"_s);
    openFromDialog(path);
    type(u"the timer's"_s);
    waitForAutosave();
    type(u"lost"_s);
    prompts.yesNoCancelAnswers.push_back(Answer::No);
    openFromDialog(path);
    EXPECT_EQ(operationIn(path), u"the timer's"_s);
    bool isKept = false;
    for (const QString& name : kept())
        isKept = isKept || operationIn(backups.folder() + u'/' + name) == u"saved"_s;
    EXPECT_TRUE(isKept);
}

TEST_F(BackupsTest, a_draft_whose_name_comes_again_is_kept) {
    project.fields.txtFileNo.setText(u"A-1"_s);
    type(u"the first"_s);
    waitForAutosave();
    const QString draft = project.state.projectFileName;
    newProject.NewFile();
    project.fields.txtFileNo.setText(u"A-1"_s);
    type(u"the second"_s);
    waitForAutosave();
    ASSERT_EQ(project.state.projectFileName, draft);
    EXPECT_EQ(operationIn(draft), u"the second"_s);
    EXPECT_EQ(newestOperation(), u"the first"_s);
}

TEST_F(BackupsTest, a_shadow_is_kept_before_the_next_one_of_its_name) {
    openFromDialog(makeProject(inProjects(u"easel.ivd"_s), u"A-1"_s, u"saved"_s));
    type(u"mine"_s);
    commands.mnuFileSave_Click();
    EXPECT_EQ(kept().size(), 1);
    EXPECT_EQ(newestOperation(), u"saved"_s);
}

TEST_F(BackupsTest, without_room_for_a_backup_the_timer_saves_all_the_same_and_tells_it) {
    const QString path = makeProject(inProjects(u"easel.ivd"_s), u"A-1"_s, u"saved"_s);
    openFromDialog(path);
    writeFile(home.filePath(u"state"_s), "no folder");
    type(u"the timer's"_s);
    waitForAutosave();
    EXPECT_EQ(operationIn(path), u"the timer's"_s);
    EXPECT_EQ(saveState.text, u"saved 15:09, no backup"_s);
    commands.mnuFileSave_Click();
    EXPECT_EQ(saveState.text, u"saved 15:09"_s);
}
