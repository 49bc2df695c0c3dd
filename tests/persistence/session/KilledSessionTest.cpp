#include "persistence/session/SessionFixture.h"

#include <csignal>
#include <functional>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// A second process that goes on with the session as it stands, changes the project and lets the
/// timer save it, again and again, until it is killed.
class KilledSession : public SessionFixture {
protected:
    /// Runs the process until it has saved at least once, kills it within the next milliseconds,
    /// and gives the number of the last text that it has told to be saved.
    int saveUntilKilled(const std::function<QString(int)>& text) {
        int ends[2];
        EXPECT_EQ(pipe(ends), 0);
        const pid_t child = fork();
        if (child == 0)
            saveForEver(text, ends[1]);
        close(ends[1]);
        int last = next(ends[0], 0);
        constexpr int LongestLife = 15000; // microseconds
        usleep(std::uniform_int_distribution<useconds_t>(0, LongestLife)(random_));
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
        for (int number = last; number != 0; number = next(ends[0], 0))
            last = number;
        close(ends[0]);
        return last;
    }

    /// The program starts again: nothing is left but the disk.
    void startAgain() {
        project.state = ProjectState();
        shadow.forget();
        newProject.NewFile();
    }

    static QString shortText(int number) { return u"text %1."_s.arg(number); }

    /// Long and short in turn, so that the text moves between the two kinds of stream.
    static QString growingText(int number) {
        constexpr int Step = 2500;
        return QString(number % 4 * Step, u'x') + shortText(number);
    }

    static constexpr int Rounds = 40;

private:
    [[noreturn]] void saveForEver(const std::function<QString(int)>& text, int end) {
        for (int number = 1;; ++number) {
            type(text(number));
            waitForAutosave();
            if (write(end, &number, sizeof number) != sizeof number)
                _exit(1);
        }
    }

    static int next(int end, int atEnd) {
        int number = 0;
        return read(end, &number, sizeof number) == sizeof number ? number : atEnd;
    }

    std::mt19937 random_{20261121};
};

} // namespace

TEST_F(KilledSession, an_opened_project_holds_the_last_autosave_and_its_shadow_the_last_save) {
    const QString easel = inProjects(u"easel.ivd"_s);
    int saves = 0;
    for (int round = 0; round < Rounds; ++round) {
        makeProject(easel, u"QF-1"_s, u"It folds."_s);
        ASSERT_TRUE(filer.OpenFile(easel));
        const int last = saveUntilKilled(shortText);
        ASSERT_GT(last, 0);
        saves += last;
        const QString found = operationIn(easel);
        ASSERT_TRUE(found == shortText(last) || found == shortText(last + 1))
            << qPrintable(found) << " after " << last;
        ASSERT_EQ(operationIn(inDrafts(u"Project - QF-1.ivd"_s)), u"It folds.");
        startAgain();
        ASSERT_TRUE(filer.OpenFile(easel));
        ASSERT_EQ(project.fields.txtOperation.text(), found);
    }
    EXPECT_GT(saves, Rounds) << "processes that are killed at their first save prove little";
}

TEST_F(KilledSession, an_unnamed_project_is_recovered_from_its_draft) {
    for (int round = 0; round < Rounds; ++round) {
        startAgain();
        ASSERT_TRUE(QDir(inDrafts({})).removeRecursively());
        const int last = saveUntilKilled(shortText);
        ASSERT_EQ(drafts(), QStringList({u"Draft -  1.ivd"_s}));
        ASSERT_TRUE(filer.OpenFile(inDrafts(u"Draft -  1.ivd"_s)));
        const QString found = project.fields.txtOperation.text();
        ASSERT_TRUE(found == shortText(last) || found == shortText(last + 1))
            << qPrintable(found) << " after " << last;
    }
}

TEST_F(KilledSession, a_text_that_grows_and_shrinks_leaves_a_project_that_opens) {
    const QString easel = inProjects(u"easel.ivd"_s);
    for (int round = 0; round < Rounds; ++round) {
        makeProject(easel, u"QF-1"_s, u"It folds."_s);
        ASSERT_TRUE(filer.OpenFile(easel));
        saveUntilKilled(growingText);
        startAgain();
        ASSERT_TRUE(filer.OpenFile(easel));
        ASSERT_EQ(project.fields.txtFileNo.text(), u"QF-1");
        type(u"mended"_s);
        commands.mnuFileSave_Click();
        ASSERT_EQ(operationIn(easel), u"mended");
    }
}

TEST_F(KilledSession, a_number_of_elements_that_changes_takes_no_text_behind_them_along) {
    const QString easel = inProjects(u"easel.ivd"_s);
    for (int round = 0; round < Rounds; ++round) {
        makeProject(easel, u"QF-1"_s, u"It folds."_s);
        ASSERT_TRUE(filer.OpenFile(easel));
        project.fields.txtDesConnections.setText(u"joined"_s);
        saveUntilKilled([this](int number) {
            project.fields.cboMainElementNum.setText(QString::number(3 + number % 2 * 2));
            return shortText(number);
        });
        startAgain();
        ASSERT_TRUE(filer.OpenFile(easel));
        ASSERT_EQ(project.fields.txtDesConnections.text(), u"joined"_s);
    }
}
