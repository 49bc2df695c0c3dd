#include "shell/MainMenus.h"

#include "controls/ClickLabel.h"
#include "shell/FormFixture.h"

#include <QSignalSpy>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class MainMenusTest : public FormFixture {
protected:
    MainMenusTest() {
        MainMenus::addEntry(menus.file(), u"mnuFileNew"_s, u"&New"_s);
        MainMenus::addEntry(menus.help(), u"mnuHelpAbout"_s, u"&About..."_s);
        MainMenus::addEntry(menus.resources(), u"mnuUSPTO"_s, u"USPTO"_s);
        menus.showWords();
    }

    ~MainMenusTest() override {
        for (QMenu* menu : {&menus.file(), &menus.help(), &menus.resources()})
            menu->hide();
    }

    /// The place directly under a word of the menu row, on the screen.
    [[nodiscard]] QPoint under(const QString& word) {
        const QWidget& label = control(word);
        return form.mapToGlobal(QPoint(label.x(), label.y() + label.height()));
    }

    MainMenus& menus = form.menus();
};

} // namespace

TEST_F(MainMenusTest, a_click_opens_the_menu_directly_under_its_word) {
    for (const auto& [word, menu] :
         {std::pair(u"lblMenuFile"_s, &menus.file()), std::pair(u"lblMenuHelp"_s, &menus.help())}) {
        QTest::mouseClick(&control(word), Qt::LeftButton);
        EXPECT_TRUE(menu->isVisible()) << qPrintable(word);
        EXPECT_EQ(menu->pos(), under(word)) << qPrintable(word);
        menu->hide();
    }
}

TEST_F(MainMenusTest, the_resources_open_under_their_button_as_far_as_the_screen_allows) {
    QTest::mouseClick(&control(u"imgResources"_s), Qt::LeftButton);
    EXPECT_TRUE(menus.resources().isVisible());
    EXPECT_EQ(menus.resources().y(), under(u"imgResources"_s).y());
    EXPECT_LE(menus.resources().x(), under(u"imgResources"_s).x());
}

TEST_F(MainMenusTest, the_keys_open_the_same_menus_at_the_same_places) {
    QTest::keyClick(&form, Qt::Key_F, Qt::AltModifier);
    EXPECT_TRUE(menus.file().isVisible());
    EXPECT_EQ(menus.file().pos(), under(u"lblMenuFile"_s));
    menus.file().hide();
    QTest::keyClick(&form, Qt::Key_H, Qt::AltModifier);
    EXPECT_TRUE(menus.help().isVisible());
    EXPECT_EQ(menus.help().pos(), under(u"lblMenuHelp"_s));
}

TEST_F(MainMenusTest, the_entries_of_the_file_menu_can_be_enabled_before_it_is_seen) {
    bool wasVisible = true;
    QSignalSpy openings(&menus, &MainMenus::fileMenuOpens);
    QObject::connect(&menus, &MainMenus::fileMenuOpens, &form,
                     [&] { wasVisible = menus.file().isVisible(); });
    menus.openHelpMenu();
    menus.help().hide();
    EXPECT_EQ(openings.count(), 0);
    menus.openFileMenu();
    EXPECT_EQ(openings.count(), 1);
    EXPECT_FALSE(wasVisible);
    EXPECT_TRUE(menus.file().isVisible());
}

TEST_F(MainMenusTest, the_word_of_an_empty_menu_is_hidden_and_its_key_opens_nothing) {
    menus.help().clear();
    menus.showWords();
    EXPECT_TRUE(control(u"lblMenuHelp"_s).isHidden());
    EXPECT_FALSE(control(u"lblMenuFile"_s).isHidden());
    QTest::keyClick(&form, Qt::Key_H, Qt::AltModifier);
    EXPECT_FALSE(menus.help().isVisible());
}

TEST_F(MainMenusTest, an_entry_bears_its_name_and_starts_once) {
    auto* entry = menus.file().findChild<QAction*>(u"mnuFileNew"_s);
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->text(), u"&New"_s);
    QSignalSpy started(entry, &QAction::triggered);
    menus.openFileMenu();
    QTest::mouseClick(&menus.file(), Qt::LeftButton, {},
                      menus.file().actionGeometry(entry).center());
    EXPECT_EQ(started.count(), 1);
    EXPECT_FALSE(menus.file().isVisible());
}

TEST_F(MainMenusTest, an_open_menu_keeps_the_keys_of_the_form_to_itself) {
    menus.openFileMenu();
    QSignalSpy openings(&menus, &MainMenus::fileMenuOpens);
    QTest::keyClick(&menus.file(), Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(openings.count(), 0);
    QTest::keyClick(&menus.file(), Qt::Key_Escape);
    EXPECT_FALSE(menus.file().isVisible());
}
