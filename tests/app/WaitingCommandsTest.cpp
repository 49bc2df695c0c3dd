#include "app/ProgramFixture.h"
#include "support/Files.h"

#include <chrono>

using namespace quillford;

namespace {

constexpr std::chrono::milliseconds InTheWait{20};

/// A user who does something more while a command waits. The waits are a tenth as long as usual.
class WaitingCommandsTest : public ProgramFixture {
protected:
    using Act = std::function<void()>;

    /// Shows the Final Draft of the sample.
    void open() {
        startWithSample();
        click(u"picTab(8)"_s);
        ASSERT_EQ(currentTab(), 8);
    }

    /// The same with a change that is not saved.
    void openChanged() {
        startWithSample();
        type(u"txtInventionTitle"_s, u" of mine"_s);
        whenAsked(u"Save Project?"_s, QMessageBox::No);
        click(u"picTab(8)"_s);
        ASSERT_EQ(currentTab(), 8);
    }

    /// Does this a moment from now, when no dialog is up.
    void soon(const Act& act) {
        QTimer::singleShot(InTheWait, &form(), [this, act] {
            EXPECT_FALSE(QApplication::activeModalWidget());
            acted_ = true;
            act();
        });
    }

    /// Exports the page, and does this in the wait behind the check.
    void exportPage(const Act& meanwhile) {
        whenAsked(u"Verify Final Draft?"_s, [this, meanwhile](QDialog& dialog) {
            soon([this, meanwhile] {
                EXPECT_FALSE(QFile::exists(page()));
                meanwhile();
            });
            presses(u"cmdSkip"_s)(dialog);
        });
        whenAskedForFile(page());
        click(u"imgCreateToFile(2)"_s);
        EXPECT_TRUE(acted_);
        EXPECT_TRUE(QFile::exists(page()));
    }

    /// Begins a new project, and does this while it is made.
    void beginNew(const Act& meanwhile) {
        soon(meanwhile);
        QTest::keyClick(&form(), Qt::Key_N, Qt::ControlModifier);
        EXPECT_TRUE(acted_);
    }

    [[nodiscard]] QString page() const { return place(u"draft.htm"_s); }

private:
    const ScopedEnvironment pace_{"QUILLFORD_TIME_SCALE", QByteArray("0.1")};
    bool acted_ = false;
};

} // namespace

TEST_F(WaitingCommandsTest, a_window_that_is_closed_while_an_export_waits_closes_after_it) {
    open();
    exportPage([this] {
        click(u"lblClose"_s);
        click(u"lblClose"_s);
        EXPECT_TRUE(form().isVisible());
    });
    EXPECT_TRUE(QTest::qWaitFor([this] { return !form().isVisible(); }));
}

TEST_F(WaitingCommandsTest, the_question_at_the_exit_comes_after_the_export_too) {
    openChanged();
    exportPage([this] { click(u"lblClose"_s); });
    whenAsked(u"Save Project?"_s, QMessageBox::Cancel,
              u"Do you want to save the current project before you exit?"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return user.allCame(); }));
    EXPECT_TRUE(form().isVisible());
}

TEST_F(WaitingCommandsTest, a_second_click_on_an_export_makes_one_file) {
    open();
    exportPage([this] { click(u"imgCreateToFile(2)"_s); });
    EXPECT_EQ(opened(), QStringList{page()});
}

TEST_F(WaitingCommandsTest, another_command_follows_the_export) {
    open();
    const QString path = place(u"draft.pdf"_s);
    exportPage([this, path] {
        click(u"imgPrintFile(1)"_s);
        whenAskedToPrint(path);
    });
    EXPECT_TRUE(QFile::exists(path));
}

TEST_F(WaitingCommandsTest, a_print_that_is_chosen_twice_is_one_print) {
    startWithSample();
    soon([this] { choose(u"mnuFilePrint"_s); });
    whenAskedToPrint(place(u"draft.pdf"_s));
    choose(u"mnuFilePrint"_s);
    EXPECT_TRUE(QFile::exists(place(u"draft.pdf"_s)));
}

TEST_F(WaitingCommandsTest, the_timer_saves_after_an_export_and_not_within_it) {
    openChanged();
    const QByteArray before = contentOf(place(u"easel.ivd"_s));
    exportPage([this] { letTimerSave(); });
    EXPECT_EQ(contentOf(place(u"easel.ivd"_s)), before);
    letTimerSave();
    EXPECT_NE(contentOf(place(u"easel.ivd"_s)), before);
}

TEST_F(WaitingCommandsTest,
       a_tab_that_is_clicked_while_a_new_project_is_made_is_that_projects_tab) {
    startWithSample();
    whenAsked(u"Section Not Complete"_s, presses(u"cmdYes"_s));
    beginNew([this] {
        click(u"picTab(2)"_s);
        EXPECT_EQ(currentTab(), 0);
    });
    EXPECT_EQ(currentTab(), 2);
    EXPECT_EQ(shown(u"txtPurpose"_s), QString());
}

TEST_F(WaitingCommandsTest,
       a_draft_that_a_new_project_has_put_away_is_neither_exported_nor_printed) {
    open();
    beginNew([this] {
        click(u"imgCreateToFile(2)"_s);
        click(u"imgPrintFile(1)"_s);
    });
    EXPECT_EQ(currentTab(), 0);
}

TEST_F(WaitingCommandsTest, a_preview_that_another_project_has_put_away_has_no_buttons_any_more) {
    open();
    const QString other = sampleProject(u"other.ivd"_s);
    exportPage([this, other] {
        QTest::keyClick(&form(), Qt::Key_O, Qt::ControlModifier);
        click(u"imgPrintFile(1)"_s);
        click(u"imgCreateToFile(1)"_s);
        whenAskedForFile(other);
    });
    EXPECT_EQ(currentTab(), 0);
}
