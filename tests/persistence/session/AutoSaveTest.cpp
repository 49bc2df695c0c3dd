#include "persistence/session/AutoSave.h"

#include "persistence/session/AutoSaveTimer.h"
#include "persistence/session/SessionFixture.h"

#include <QCoreApplication>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class AutoSaveTest : public SessionFixture {
protected:
    void tick(int times = 1) {
        for (int i = 0; i < times; ++i)
            autoSave.tmrAutoSave_Timer();
    }

    QString provisional(const QString& number) const {
        return inDrafts(u"Provisional Project [%1] (%2).ivd"_s.arg(
            number, clock.date.toString(u"MM-dd-yyyy"_s)));
    }
};

} // namespace

TEST_F(AutoSaveTest, a_new_project_without_changes_is_never_saved) {
    tick(20);
    EXPECT_EQ(drafts(), QStringList());
    EXPECT_EQ(timer.interval(), 0);
}

TEST_F(AutoSaveTest, the_first_change_leads_to_a_draft_at_the_sixth_tick) {
    type(u"I"_s);
    tick(5);
    EXPECT_EQ(drafts(), QStringList());
    EXPECT_EQ(timer.interval(), 600);
    tick();
    EXPECT_EQ(drafts(), QStringList({u"Draft -  1.ivd"_s}));
    EXPECT_EQ(names3(), std::tuple(inDrafts(drafts()[0]), inDrafts(drafts()[0]), u""_s));
    EXPECT_EQ(operationIn(project.state.draftFileName), u"I");
    EXPECT_FALSE(project.state.isAutoSaving);
}

TEST_F(AutoSaveTest, a_project_that_stays_changed_is_saved_at_every_sixth_tick) {
    type(u"I"_s);
    tick(6);
    type(u"It turns."_s);
    tick(5);
    EXPECT_EQ(operationIn(project.state.draftFileName), u"I");
    tick();
    EXPECT_EQ(operationIn(project.state.draftFileName), u"It turns.");
}

TEST_F(AutoSaveTest, the_count_stands_still_while_nothing_has_changed) {
    type(u"I"_s);
    tick(3);
    ResetSaveFlag(project.fields, project.state);
    tick(10);
    type(u"It"_s);
    tick(2);
    EXPECT_EQ(drafts(), QStringList());
    tick();
    EXPECT_EQ(drafts().size(), 1);
}

TEST_F(AutoSaveTest, a_draft_keeps_the_file_number_of_its_first_save) {
    type(project.fields.txtFileNo, u" A-1 "_s);
    tick(6);
    EXPECT_EQ(project.state.draftFileName, provisional(u"A-1"_s));
    type(project.fields.txtFileNo, u"B-2"_s);
    tick(6);
    EXPECT_EQ(project.state.draftFileName, provisional(u"A-1"_s));
    EXPECT_EQ(drafts().size(), 1);
}

TEST_F(AutoSaveTest, a_second_draft_without_a_number_is_the_second) {
    writeFile(inDrafts(u"Draft -  1.ivd"_s));
    type(u"I"_s);
    tick(6);
    EXPECT_EQ(project.state.draftFileName, inDrafts(u"Draft -  2.ivd"_s));
}

TEST_F(AutoSaveTest, a_named_project_is_saved_into_its_own_file) {
    project.state.projectFileName = inProjects(u"a.ivd"_s);
    type(u"It turns."_s);
    tick(6);
    EXPECT_EQ(operationIn(inProjects(u"a.ivd"_s)), u"It turns.");
    EXPECT_TRUE(isChanged());
    EXPECT_EQ(drafts(), QStringList());
}

TEST_F(AutoSaveTest, nothing_is_saved_or_counted_while_a_command_is_at_work) {
    type(u"I"_s);
    tick(5);
    {
        const CommandScope command(project.state);
        tick(20);
    }
    EXPECT_EQ(drafts(), QStringList());
    tick();
    EXPECT_EQ(drafts().size(), 1);
}

TEST_F(AutoSaveTest, a_wait_inside_a_command_saves_nothing) {
    type(u"I"_s);
    tick(5);
    clock.events = [this] { tick(6); };
    newProject.NewFile();
    EXPECT_EQ(drafts(), QStringList());
}

TEST_F(AutoSaveTest, a_save_that_fails_is_told_and_tried_again) {
    ASSERT_TRUE(QDir(inDrafts({})).removeRecursively());
    writeFile(workDir + u"/Drafts"_s);
    type(u"It turns."_s);
    tick(6);
    EXPECT_TRUE(saveState.text.startsWith(u"not saved: "_s)) << saveState.text.toStdString();
    EXPECT_FALSE(project.state.isAutoSaving);
    EXPECT_EQ(project.state.commandsRunning, 0);
    ASSERT_TRUE(QFile::remove(workDir + u"/Drafts"_s));
    tick(5);
    EXPECT_TRUE(saveState.text.startsWith(u"not saved: "_s));
    tick();
    EXPECT_TRUE(saveState.text.startsWith(u"saved "_s));
    EXPECT_EQ(operationIn(project.state.draftFileName), u"It turns.");
}

TEST_F(AutoSaveTest, a_full_disk_is_told_and_the_next_save_mends_the_file) {
    project.state.projectFileName = inProjects(u"a.ivd"_s);
    type(u"short"_s);
    tick(6);
    type(QString(100000, u'x'));
    {
        const FullDisk full(20000);
        tick(6);
    }
    EXPECT_TRUE(saveState.text.startsWith(u"not saved: "_s));
    tick(6);
    EXPECT_EQ(operationIn(inProjects(u"a.ivd"_s)), QString(100000, u'x'));
}

TEST_F(AutoSaveTest, without_a_free_name_nobody_is_asked) {
    for (int i = 1; i <= 1000; ++i)
        writeFile(inDrafts(u"Draft -  %1.ivd"_s.arg(i)));
    type(u"I"_s);
    tick(6);
    EXPECT_EQ(saveState.text, u"not saved: no free name");
    EXPECT_EQ(names3(), std::tuple(u""_s, u""_s, u""_s));
}

TEST_F(AutoSaveTest, a_clock_that_is_set_back_stops_no_save_and_moves_no_draft) {
    type(project.fields.txtFileNo, u"A-1"_s);
    clock.date = QDateTime(QDate(2026, 3, 14), QTime(0, 5));
    tick(6);
    EXPECT_EQ(saveState.text, u"saved 00:05");
    const QString draft = provisional(u"A-1"_s);
    clock.date = QDateTime(QDate(2026, 3, 13), QTime(23, 10));
    type(u"It turns."_s);
    tick(6);
    EXPECT_EQ(saveState.text, u"saved 23:10");
    EXPECT_EQ(project.state.draftFileName, draft);
    EXPECT_EQ(operationIn(draft), u"It turns.");
    EXPECT_EQ(drafts().size(), 1);
}

TEST_F(AutoSaveTest, a_draft_that_was_opened_is_saved_into_itself) {
    const QString draft = makeProject(inDrafts(u"Draft -  1.ivd"_s), {}, u"old"_s);
    openFromDialog(draft);
    type(u"new"_s);
    tick(6);
    EXPECT_EQ(operationIn(draft), u"new");
    EXPECT_EQ(names3(), std::tuple(draft, u""_s, u""_s));
}

TEST_F(AutoSaveTest, the_timer_is_what_ticks) {
    timer.setInterval(0);
    timer.start();
    type(u"I"_s);
    for (int i = 0; i < 1000 && timer.interval() == 0; ++i)
        QCoreApplication::processEvents();
    EXPECT_EQ(timer.interval(), 600);
}

TEST(AutoSaveTimer, takes_a_timer_that_stands_still) {
    QTimer timer;
    timer.start(5);
    AutoSaveTimer theSwitch(timer);
    EXPECT_EQ(timer.objectName(), u"tmrAutoSave");
    EXPECT_EQ(timer.interval(), 1000);
    EXPECT_FALSE(theSwitch.isAutoSaveEnabled());
}

TEST(AutoSaveTimer, switching_on_twice_does_not_begin_anew) {
    QTimer timer;
    AutoSaveTimer theSwitch(timer);
    theSwitch.setAutoSaveEnabled(true);
    const int id = timer.timerId();
    theSwitch.setAutoSaveEnabled(true);
    EXPECT_EQ(timer.timerId(), id);
    theSwitch.setAutoSaveEnabled(false);
    EXPECT_FALSE(timer.isActive());
}
