#include "app/ProgramFixture.h"
#include "support/Files.h"
#include "support/TurnWheel.h"

#include <QComboBox>
#include <QMenu>
#include <QScrollBar>

using namespace quillford;

namespace {

class WindowCommandsTest : public ProgramFixture {
protected:
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : &form(), key, modifiers);
    }

    void change() { QTest::keyClicks(&line(u"txtCompany"_s), u"x"_s); }

    [[nodiscard]] QByteArray saved() const { return contentOf(place(u"easel.ivd"_s)); }

    QScrollBar& bar(int section) { return control<QScrollBar>(u"vscroll(%1)"_s.arg(section)); }
};

} // namespace

TEST_F(WindowCommandsTest, ctrl_s_saves_the_open_project) {
    startWithSample();
    const QByteArray before = saved();
    change();
    key(Qt::Key_S);
    EXPECT_NE(saved(), before);
    EXPECT_TRUE(form().isVisible());
}

TEST_F(WindowCommandsTest, ctrl_shift_s_saves_nothing) {
    startWithSample();
    const QByteArray before = saved();
    change();
    key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(saved(), before);
}

TEST_F(WindowCommandsTest, under_the_welcome_page_ctrl_s_is_off_once_the_menu_was_opened_there) {
    start();
    openFileMenu();
    key(Qt::Key_S);
    EXPECT_TRUE(control(u"picWelcomePage"_s).isVisible());
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(WindowCommandsTest,
       under_the_welcome_page_ctrl_s_leaves_it_while_the_menu_was_never_opened) {
    start();
    whenAskedForFile({});
    key(Qt::Key_S);
    EXPECT_FALSE(control(u"picWelcomePage"_s).isVisible());
}

TEST_F(WindowCommandsTest, ctrl_n_leaves_the_welcome_page) {
    start();
    key(Qt::Key_N);
    EXPECT_FALSE(control(u"picWelcomePage"_s).isVisible());
    EXPECT_TRUE(line(u"txtFileNo"_s).hasFocus());
}

TEST_F(WindowCommandsTest, ctrl_n_and_ctrl_o_ask_about_a_changed_project_first) {
    startWithSample();
    change();
    whenAsked(u"Save Project?"_s, QMessageBox::Cancel,
              u"Do you want to save the current project before you create a new Project?"_s);
    whenAsked(u"Save Project?"_s, QMessageBox::Cancel,
              u"Do you want to save the current project before you open the next file?"_s);
    key(Qt::Key_N);
    EXPECT_EQ(line(u"txtInventionTitle"_s).text(), u"Folding Field Easel"_s);
    key(Qt::Key_O);
    EXPECT_EQ(line(u"txtInventionTitle"_s).text(), u"Folding Field Easel"_s);
}

TEST_F(WindowCommandsTest, ctrl_n_empties_a_project_that_is_not_to_be_saved) {
    startWithSample();
    change();
    whenAsked(u"Save Project?"_s, QMessageBox::No);
    key(Qt::Key_N);
    EXPECT_EQ(line(u"txtInventionTitle"_s).text(), QString());
    EXPECT_EQ(currentTab(), 0);
}

TEST_F(WindowCommandsTest, alt_f_opens_the_file_menu_with_its_entries_enabled_as_they_are) {
    start();
    key(Qt::Key_F, Qt::AltModifier);
    auto& menu = control<QMenu>(u"mnuFile"_s);
    EXPECT_TRUE(menu.isVisible());
    EXPECT_FALSE(menuEntry(u"mnuFileSave"_s).isEnabled());
    menu.hide();
    click(u"lblRecentPatents(0)"_s);
    key(Qt::Key_F, Qt::AltModifier);
    EXPECT_TRUE(menuEntry(u"mnuFileSave"_s).isEnabled());
    EXPECT_FALSE(menuEntry(u"mnuFilePrint"_s).isEnabled());
    menu.hide();
    startWithSample();
    openFileMenu();
    EXPECT_TRUE(menuEntry(u"mnuFilePrint"_s).isEnabled());
}

TEST_F(WindowCommandsTest, the_close_control_asks_as_the_exit_entry_does) {
    startWithSample();
    change();
    for (int i = 0; i < 2; ++i)
        whenAsked(u"Save Project?"_s, QMessageBox::Cancel,
                  u"Do you want to save the current project before you exit?"_s);
    click(u"lblClose"_s);
    EXPECT_TRUE(form().isVisible());
    menuEntry(u"mnuFileExit"_s).trigger();
    EXPECT_TRUE(form().isVisible());
}

TEST_F(WindowCommandsTest, an_unchanged_project_closes_without_a_question) {
    startWithSample();
    click(u"lblClose"_s);
    EXPECT_FALSE(form().isVisible());
}

TEST_F(WindowCommandsTest, a_notch_over_the_help_pane_leaves_the_sections_bar_alone) {
    startWithSample();
    clickOn(tab(1));
    QScrollBar& inventors = bar(0);
    ASSERT_TRUE(inventors.isVisible());
    turnWheel(control(u"picHelpOn"_s), NotchDown);
    EXPECT_EQ(inventors.value(), 0);
    turnWheel(panel(1), NotchDown);
    EXPECT_GT(inventors.value(), 0);
}

TEST_F(WindowCommandsTest, at_the_ends_of_a_sections_bar_a_notch_changes_nothing) {
    startWithSample();
    clickOn(tab(1));
    QScrollBar& inventors = bar(0);
    turnWheel(panel(1), NotchUp);
    EXPECT_EQ(inventors.value(), 0);
    for (int i = 0; i < 20; ++i)
        turnWheel(panel(1), NotchDown);
    EXPECT_EQ(inventors.value(), inventors.maximum());
}

TEST_F(WindowCommandsTest, on_tabs_without_a_bar_the_wheel_moves_none) {
    startWithSample();
    for (const int index : {0, 7, 8, 9}) {
        clickOn(tab(index));
        ASSERT_EQ(currentTab(), index);
        QList<int> before;
        for (int section = 0; section < 6; ++section)
            before.append(bar(section).value());
        turnWheel(form(), NotchDown);
        QList<int> after;
        for (int section = 0; section < 6; ++section)
            after.append(bar(section).value());
        EXPECT_EQ(after, before) << index;
    }
}

TEST_F(WindowCommandsTest, a_notch_over_a_count_changes_no_count) {
    startWithSample();
    clickOn(tab(1));
    auto& count = control<QComboBox>(u"cboInventorsNum"_s);
    const QString before = count.currentText();
    turnWheel(count, NotchDown);
    turnWheel(count, NotchUp);
    EXPECT_EQ(count.currentText(), before);
}
