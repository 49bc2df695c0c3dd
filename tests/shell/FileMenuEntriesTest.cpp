#include "shell/FileMenuEntries.h"

#include "support/PrintQt.h"

#include <QPointer>
#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class FileMenuEntriesTest : public testing::Test {
protected:
    [[nodiscard]] QAction& entry(const QString& name) { return *menu.findChild<QAction*>(name); }

    [[nodiscard]] QStringList captions() const {
        QStringList captions;
        for (const QAction* entry : menu.actions())
            captions.append(entry->isSeparator() ? u"-"_s : entry->text());
        return captions;
    }

    [[nodiscard]] QStringList enabled() const {
        QStringList names;
        for (const QAction* entry : menu.actions())
            if (!entry->isSeparator() && entry->isEnabled())
                names.append(entry->objectName());
        return names;
    }

    QMenu menu;
    FileMenuEntries& entries = *new FileMenuEntries(menu);
    FileMenu state;
};

const QStringList AlwaysEnabled{u"mnuFileNew"_s, u"mnuFileOpen"_s, u"mnuFileExit"_s};

} // namespace

TEST_F(FileMenuEntriesTest, each_entry_starts_its_own_command_and_no_other) {
    using Entries = FileMenuEntries;
    const std::vector<std::pair<QString, void (Entries::*)()>> all{
        {u"mnuFileNew"_s, &Entries::mnuFileNew_Click},
        {u"mnuFileOpen"_s, &Entries::mnuFileOpen_Click},
        {u"mnuFileSave"_s, &Entries::mnuFileSave_Click},
        {u"mnuFileSaveAs"_s, &Entries::mnuFileSaveAs_Click},
        {u"mnuFileExportToWord"_s, &Entries::mnuFileExportToWord_Click},
        {u"mnuFileExportToHTML"_s, &Entries::mnuFileExportToHTML_Click},
        {u"mnuFilePrint"_s, &Entries::mnuFilePrint_Click},
        {u"mnuGotoWelcomePage"_s, &Entries::mnuGotoWelcomePage_Click},
        {u"mnuFileExit"_s, &Entries::mnuFileExit_Click}};
    QStringList started;
    for (const auto& [name, clicked] : all)
        QObject::connect(&entries, clicked, &menu, [&started, name] { started.append(name); });
    QStringList expected;
    for (const auto& [name, clicked] : all) {
        entry(name).trigger();
        expected.append(name);
    }
    EXPECT_EQ(started, expected);
}

TEST_F(FileMenuEntriesTest, under_the_welcome_page_there_is_no_project_to_save_or_close) {
    state.open(true, false);
    entries.enable(state);
    EXPECT_EQ(enabled(), AlwaysEnabled);
}

TEST_F(FileMenuEntriesTest, a_project_can_be_saved_and_closed) {
    state.open(false, false);
    entries.enable(state);
    EXPECT_EQ(enabled(),
              (QStringList{u"mnuFileNew"_s, u"mnuFileOpen"_s, u"mnuFileSave"_s, u"mnuFileSaveAs"_s,
                           u"mnuGotoWelcomePage"_s, u"mnuFileExit"_s}));
}

TEST_F(FileMenuEntriesTest, a_complete_draft_can_be_exported_and_printed) {
    state.open(false, true);
    entries.enable(state);
    for (const QString& name :
         {u"mnuFileExportToWord"_s, u"mnuFileExportToHTML"_s, u"mnuFilePrint"_s})
        EXPECT_TRUE(entry(name).isEnabled()) << qPrintable(name);
    state.open(false, false);
    entries.enable(state);
    EXPECT_FALSE(entry(u"mnuFilePrint"_s).isEnabled());
}

TEST_F(FileMenuEntriesTest, the_recent_projects_stand_between_lines_and_start_with_their_number) {
    entries.setRecentProjects({u"&1 - easel"_s, u"&2 - clip"_s});
    EXPECT_EQ(entry(u"mnuFileRecent(1)"_s).text(), u"&1 - easel"_s);
    EXPECT_EQ(entry(u"mnuFileRecent(2)"_s).text(), u"&2 - clip"_s);
    const QStringList all = captions();
    const qsizetype first = all.indexOf(u"&1 - easel"_s);
    EXPECT_EQ(all.mid(first - 1, 4),
              (QStringList{u"-"_s, u"&1 - easel"_s, u"&2 - clip"_s, u"-"_s}));
    QSignalSpy opened(&entries, &FileMenuEntries::mnuFileRecent_Click);
    entry(u"mnuFileRecent(2)"_s).trigger();
    ASSERT_EQ(opened.count(), 1);
    EXPECT_EQ(opened.first().first().toInt(), 2);
}

TEST_F(FileMenuEntriesTest, a_new_list_replaces_the_old_rows) {
    const QStringList without = captions();
    entries.setRecentProjects({u"&1 - easel"_s, u"&2 - clip"_s});
    entries.setRecentProjects({u"&1 - clip"_s});
    EXPECT_EQ(entry(u"mnuFileRecent(1)"_s).text(), u"&1 - clip"_s);
    EXPECT_FALSE(menu.findChild<QAction*>(u"mnuFileRecent(2)"_s));
    entries.setRecentProjects({});
    EXPECT_EQ(captions(), without);
}

TEST_F(FileMenuEntriesTest, the_list_may_change_while_one_of_its_rows_is_at_work) {
    entries.setRecentProjects({u"&1 - easel"_s, u"&2 - clip"_s});
    QObject::connect(&entries, &FileMenuEntries::mnuFileRecent_Click, &menu, [this] {
        entries.setRecentProjects({u"&1 - clip"_s, u"&2 - easel"_s});
    });
    entry(u"mnuFileRecent(2)"_s).trigger();
    EXPECT_EQ(entry(u"mnuFileRecent(1)"_s).text(), u"&1 - clip"_s);
}

TEST_F(FileMenuEntriesTest, a_key_is_told_beside_its_entry_and_is_not_a_shortcut) {
    EXPECT_EQ(entry(u"mnuFileSave"_s).text(), u"&Save\tCtrl+S"_s);
    for (const QAction* entry : menu.actions())
        EXPECT_TRUE(entry->shortcut().isEmpty()) << qPrintable(entry->text());
}
