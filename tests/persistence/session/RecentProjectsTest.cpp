#include "persistence/session/RecentProjects.h"

#include "core/settings/SettingsNames.h"
#include "support/FakeSettings.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class RecentProjectsTest : public testing::Test {
protected:
    RecentProjectsTest() {
        QObject::connect(&recent, &RecentProjects::rowsChanged, [this] { ++changes; });
    }

    void list(const QStringList& entries) {
        for (int i = 0; i < entries.size(); ++i)
            settings.regWrite(Hive::CurrentUser, settingsNames::SettingsKey, u"file%1"_s.arg(i + 1),
                              entries[i]);
    }

    /// The five values; those that are missing are left out.
    QStringList listed() const {
        QStringList entries;
        for (int i = 1; i <= 5; ++i)
            entries.append(settings.regRead(Hive::CurrentUser, settingsNames::SettingsKey,
                                            u"file%1"_s.arg(i)));
        entries.removeAll(QString());
        return entries;
    }

    void start(const QStringList& entries) {
        list(entries);
        recent.loadRecentProjects(false);
    }

    QStringList menu() const {
        QStringList captions;
        for (int i = 1; i <= recent.rowCount(); ++i)
            captions.append(recent.menuCaption(i));
        return captions;
    }

    QStringList labels() const {
        QStringList captions;
        for (int i = 1; i <= recent.rowCount(); ++i)
            captions.append(recent.labelCaption(i));
        return captions;
    }

    QStringList tags() const {
        QStringList tags;
        for (int i = 1; i <= recent.rowCount(); ++i)
            tags.append(recent.entry(i));
        return tags;
    }

    /// "/p/a.ivd||" for "a".
    static QString bare(const QString& name) { return u"/p/"_s + name + u".ivd||"_s; }

    const QStringList five{bare(u"a"_s), bare(u"b"_s), bare(u"c"_s), bare(u"d"_s), bare(u"e"_s)};

    FakeSettings store;
    Settings settings{store};
    Project project;
    RecentProjects recent{settings, project};
    int changes = 0;
};

} // namespace

// What the rows show

TEST_F(RecentProjectsTest, an_empty_list_has_no_rows) {
    recent.loadRecentProjects(false);
    EXPECT_EQ(recent.rowCount(), 0);
    EXPECT_EQ(recent.entry(1), u"");
    EXPECT_EQ(changes, 1);
}

TEST_F(RecentProjectsTest, a_project_with_number_and_title_shows_them_on_the_welcome_page) {
    start({u"/p/Test.ivd|A-1|Widget"_s});
    EXPECT_EQ(labels(), QStringList({u"A-1 (Widget)"_s}));
    EXPECT_EQ(menu(), QStringList({u"&1 - Test"_s}));
    EXPECT_EQ(tags(), QStringList({u"/p/Test.ivd|A-1|Widget"_s}));
}

TEST_F(RecentProjectsTest, a_project_without_number_or_title_shows_its_file_name) {
    start({u"/p/Test.ivd||"_s, u"/p/Test 2.ivd|A-1|"_s, u"/p/Project - 7.ivd||x"_s});
    EXPECT_EQ(labels(),
              QStringList({u"Project - Test"_s, u"Project - Test 2"_s, u"Project - 7"_s}));
    EXPECT_EQ(menu(), QStringList({u"&1 - Test"_s, u"&2 - Test 2"_s, u"&3 - Project - 7"_s}));
}

TEST_F(RecentProjectsTest, a_menu_shows_the_ampersands_of_a_name) {
    start({u"/p/R&D & more.ivd||"_s});
    EXPECT_EQ(menu(), QStringList({u"&1 - R&&D && more"_s}));
    EXPECT_EQ(labels(), QStringList({u"Project - R&D & more"_s}));
}

TEST_F(RecentProjectsTest, a_menu_shows_a_name_with_a_tab_character_in_one_piece) {
    start({u"/p/easel\tof mine.ivd||"_s});
    EXPECT_EQ(menu(), QStringList({u"&1 - easel of mine"_s}));
    EXPECT_EQ(tags(), QStringList({u"/p/easel\tof mine.ivd||"_s})) << "the file keeps its name";
}

TEST_F(RecentProjectsTest, an_entry_of_a_path_alone_has_no_label) {
    start({u"C:\\p\\Test.ivd"_s});
    EXPECT_EQ(labels(), QStringList({QString()}));
    EXPECT_EQ(menu(), QStringList({u"&1 - Test"_s}));
}

TEST_F(RecentProjectsTest, unnamed_drafts_are_counted_from_1_at_each_build) {
    start({u"/q/Drafts/Provisional Project [1] (01-02-2026).ivd|1|"_s, bare(u"a"_s),
           u"/q/Drafts/Provisional Project [2] (01-02-2026).ivd|2|Easel"_s});
    const QStringList names{u"Project - 1 Recovered"_s, u"Project - a"_s,
                            u"Project - 2 Recovered"_s};
    EXPECT_EQ(labels(), names);
    EXPECT_EQ(menu(), QStringList({u"&1 - Project - 1 Recovered"_s, u"&2 - a"_s,
                                   u"&3 - Project - 2 Recovered"_s}));
    recent.refreshRecentProjects();
    EXPECT_EQ(labels(), names);
}

TEST_F(RecentProjectsTest, what_a_crash_left_marked_is_recovered_at_the_next_start_only) {
    start({u"/p/Test.ivd|A-1|Widget|FILEOPEN"_s, u"/p/b.ivd|||FILEOPEN"_s});
    EXPECT_EQ(labels(),
              QStringList({u"A-1 (Widget) (RECOVERED FILE)"_s, u"Project - b (RECOVERED FILE)"_s}));
    EXPECT_EQ(menu(), QStringList({u"&1 - Test (RECOVERED FILE)"_s, u"&2 - b (RECOVERED FILE)"_s}));
    recent.refreshRecentProjects();
    EXPECT_EQ(labels(), QStringList({u"A-1 (Widget)"_s, u"Project - b"_s}));
    EXPECT_EQ(listed()[0], u"/p/Test.ivd|A-1|Widget|FILEOPEN");
}

TEST_F(RecentProjectsTest, a_marked_draft_is_recovered_twice_over_on_the_welcome_page_alone) {
    start({u"/q/Drafts/Provisional Project [1] (01-02-2026).ivd|1||FILEOPEN"_s});
    EXPECT_EQ(labels(), QStringList({u"Project - 1 Recovered (RECOVERED FILE)"_s}));
    EXPECT_EQ(menu(), QStringList({u"&1 - Project - 1 Recovered"_s}));
}

TEST_F(RecentProjectsTest, values_behind_a_gap_move_up) {
    settings.regWrite(Hive::CurrentUser, settingsNames::SettingsKey, u"file2", bare(u"b"_s));
    settings.regWrite(Hive::CurrentUser, settingsNames::SettingsKey, u"file4", bare(u"d"_s));
    recent.loadRecentProjects(false);
    EXPECT_EQ(tags(), QStringList({bare(u"b"_s), bare(u"d"_s)}));
    EXPECT_EQ(recent.countRecentEntries(), 2);
}

// Adding and replacing

TEST_F(RecentProjectsTest, the_first_project_is_the_only_one) {
    recent.addRecentEntry(bare(u"a"_s), false);
    EXPECT_EQ(listed(), QStringList({bare(u"a"_s)}));
    EXPECT_EQ(changes, 0);
}

TEST_F(RecentProjectsTest, a_new_project_pushes_the_others_down) {
    start({bare(u"a"_s), bare(u"b"_s)});
    recent.addRecentEntry(bare(u"c"_s), true);
    EXPECT_EQ(listed(), QStringList({bare(u"c"_s), bare(u"a"_s), bare(u"b"_s)}));
    EXPECT_EQ(tags(), listed());
    EXPECT_EQ(changes, 2);
}

TEST_F(RecentProjectsTest, a_project_that_is_listed_is_updated_in_its_place) {
    start(five);
    project.fields.txtFileNo.setText(u" A-1 "_s);
    project.fields.txtInventionTitle.setText(u" Widget "_s);
    recent.projectSaved(u"/p/c.ivd"_s, false);
    EXPECT_EQ(listed(),
              QStringList({five[0], five[1], u"/p/c.ivd|A-1|Widget|FILEOPEN"_s, five[3], five[4]}));
    EXPECT_EQ(tags(), five);
}

TEST_F(RecentProjectsTest, a_path_that_is_part_of_anothers_entry_replaces_that_as_well) {
    start({u"/home/p/a.ivd||"_s, bare(u"b"_s)});
    recent.addRecentEntry(bare(u"a"_s), false);
    EXPECT_EQ(listed(), QStringList({bare(u"a"_s), bare(u"b"_s)}));
}

TEST_F(RecentProjectsTest, the_entry_of_a_draft_becomes_that_of_the_saved_project) {
    const QString draft = u"/q/Drafts/Provisional Project [1] (01-02-2026).ivd"_s;
    start({bare(u"a"_s), draft + u"|1||FILEOPEN"_s});
    project.state.draftFileName = draft;
    recent.projectSaved(u"/p/easel.ivd"_s, true);
    EXPECT_EQ(listed(), QStringList({bare(u"a"_s), u"/p/easel.ivd|||FILEOPEN"_s}));
}

TEST_F(RecentProjectsTest, with_a_draft_the_saved_projects_own_entry_is_not_looked_for) {
    project.state.draftFileName = u"/q/Drafts/Draft -  1.ivd"_s;
    start({bare(u"a"_s)});
    recent.addRecentEntry(bare(u"a"_s), false);
    EXPECT_EQ(listed(), QStringList({bare(u"a"_s), bare(u"a"_s)}));
}

TEST_F(RecentProjectsTest, a_provisional_draft_finds_its_entry_by_its_own_path_too) {
    const QString entry = u"/q/Drafts/Provisional Project [1] (01-02-2026).ivd|1|"_s;
    start({bare(u"a"_s), entry});
    project.state.draftFileName = u"/q/Drafts/other.ivd"_s;
    recent.addRecentEntry(entry + u"|FILEOPEN"_s, false);
    EXPECT_EQ(listed(), QStringList({bare(u"a"_s), entry + u"|FILEOPEN"_s}));
}

TEST_F(RecentProjectsTest, a_sixth_project_pushes_out_the_oldest_and_gives_it_back_when_dropped) {
    start(five);
    recent.addRecentEntry(bare(u"f"_s), true);
    EXPECT_EQ(listed(), QStringList({bare(u"f"_s), five[0], five[1], five[2], five[3]}));
    recent.dropEntry(u"/p/f.ivd"_s);
    EXPECT_EQ(listed(), five);
}

TEST_F(RecentProjectsTest, dropping_one_of_a_few_moves_the_others_up) {
    start({bare(u"a"_s), bare(u"b"_s), bare(u"c"_s)});
    recent.dropEntry(u"/p/a.ivd"_s);
    EXPECT_EQ(listed(), QStringList({bare(u"b"_s), bare(u"c"_s)}));
    recent.dropEntry(u"/p/b.ivd"_s);
    recent.dropEntry(u"/p/c.ivd"_s);
    EXPECT_EQ(listed(), QStringList());
}

TEST_F(RecentProjectsTest, a_project_that_pushed_nothing_out_brings_nothing_back) {
    start(five);
    recent.addRecentEntry(bare(u"f"_s), true);
    recent.projectOpened(bare(u"b"_s), u"/p/b.ivd"_s);
    recent.dropEntry(u"/p/b.ivd"_s);
    EXPECT_EQ(listed().size(), 4);
}

TEST_F(RecentProjectsTest, a_project_that_is_not_listed_takes_no_other_with_it) {
    start(five);
    recent.dropEntry(u"/p/f.ivd"_s);
    EXPECT_EQ(listed(), five);
}

TEST_F(RecentProjectsTest, an_entry_that_another_program_has_brought_back_does_not_come_twice) {
    start(five);
    recent.addRecentEntry(bare(u"f"_s), true);
    list({five[4] + u"|FILEOPEN"_s, bare(u"f"_s), five[0], five[1], five[2]});
    recent.dropEntry(u"/p/f.ivd"_s);
    EXPECT_EQ(listed(), QStringList({five[4] + u"|FILEOPEN"_s, five[0], five[1], five[2]}));
}

// Opening

TEST_F(RecentProjectsTest, opening_the_third_makes_it_the_first) {
    start(five);
    EXPECT_FALSE(recent.projectOpened(five[2], u"/p/c.ivd"_s));
    EXPECT_EQ(listed(),
              QStringList({five[2] + u"|FILEOPEN"_s, five[0], five[1], five[3], five[4]}));
    EXPECT_EQ(menu(),
              QStringList({u"&1 - c"_s, u"&2 - a"_s, u"&3 - b"_s, u"&4 - d"_s, u"&5 - e"_s}));
    EXPECT_EQ(tags(), QStringList({five[2], five[0], five[1], five[3], five[4]}));
    EXPECT_EQ(changes, 2);
}

TEST_F(RecentProjectsTest, opening_by_a_plain_path_makes_the_tag_from_the_project) {
    start(five);
    project.fields.txtFileNo.setText(u"7"_s);
    recent.projectOpened(u"/p/b.ivd"_s, u"/p/b.ivd"_s);
    EXPECT_EQ(recent.entry(1), u"/p/b.ivd|7|");
    EXPECT_EQ(listed()[0], u"/p/b.ivd|||FILEOPEN");
}

TEST_F(RecentProjectsTest, a_project_that_is_not_listed_becomes_the_first) {
    start(five);
    project.fields.txtFileNo.setText(u" A-1 "_s);
    EXPECT_FALSE(recent.projectOpened(u"/p/f.ivd"_s, u"/p/f.ivd"_s));
    EXPECT_EQ(listed(), QStringList({u"/p/f.ivd|A-1|"_s, five[0], five[1], five[2], five[3]}));
    EXPECT_EQ(menu()[0], u"&1 - f");
}

TEST_F(RecentProjectsTest, opening_a_recovered_row_says_so) {
    start({bare(u"a"_s), u"/p/b.ivd|||FILEOPEN"_s});
    EXPECT_FALSE(recent.projectOpened(bare(u"a"_s), u"/p/a.ivd"_s));
    EXPECT_TRUE(recent.projectOpened(recent.entry(2), u"/p/b.ivd"_s));
    EXPECT_EQ(menu(), QStringList({u"&1 - b (RECOVERED FILE)"_s, u"&2 - a"_s}));
}

TEST_F(RecentProjectsTest, opening_another_project_leaves_the_mark_of_the_one_before) {
    start({bare(u"a"_s), bare(u"b"_s)});
    recent.projectOpened(bare(u"a"_s), u"/p/a.ivd"_s);
    recent.projectOpened(bare(u"b"_s), u"/p/b.ivd"_s);
    EXPECT_EQ(listed(),
              QStringList({bare(u"b"_s) + u"|FILEOPEN"_s, bare(u"a"_s) + u"|FILEOPEN"_s}));
}

TEST_F(RecentProjectsTest, each_entry_that_holds_the_path_moves) {
    start({bare(u"x"_s), u"/home/p/a.ivd||"_s, bare(u"a"_s)});
    recent.projectOpened(bare(u"a"_s), u"/p/a.ivd"_s);
    EXPECT_EQ(listed(), QStringList({bare(u"a"_s) + u"|FILEOPEN"_s, u"/home/p/a.ivd|||FILEOPEN"_s,
                                     bare(u"x"_s)}));
}

TEST_F(RecentProjectsTest, rows_that_another_program_has_overtaken_are_built_anew) {
    start({bare(u"a"_s)});
    list({bare(u"n"_s), bare(u"a"_s)});
    recent.projectOpened(bare(u"a"_s), u"/p/a.ivd"_s);
    EXPECT_EQ(menu(), QStringList({u"&1 - a"_s, u"&2 - n"_s}));
}

TEST_F(RecentProjectsTest, the_row_that_moves_is_the_projects_own_also_when_the_list_has_moved) {
    start({bare(u"a"_s), bare(u"b"_s)});
    list({bare(u"n"_s), bare(u"a"_s), bare(u"b"_s)});
    recent.projectOpened(bare(u"a"_s), u"/p/a.ivd"_s);
    EXPECT_EQ(menu(), QStringList({u"&1 - a"_s, u"&2 - n"_s, u"&3 - b"_s}));
    EXPECT_EQ(tags(), listed());
}

TEST_F(RecentProjectsTest, a_recovered_row_is_still_one_after_another_program_has_moved_it) {
    start({bare(u"a"_s), u"/p/b.ivd|||FILEOPEN"_s});
    list({bare(u"n"_s), bare(u"a"_s), u"/p/b.ivd|||FILEOPEN"_s});
    EXPECT_TRUE(recent.projectOpened(recent.entry(2), u"/p/b.ivd"_s));
    EXPECT_EQ(menu(), QStringList({u"&1 - b"_s, u"&2 - n"_s, u"&3 - a"_s}));
}

TEST_F(RecentProjectsTest, each_row_whose_entry_holds_the_path_moves) {
    start({bare(u"x"_s), u"/home/p/a.ivd||"_s, bare(u"y"_s), bare(u"a"_s)});
    recent.projectOpened(bare(u"a"_s), u"/p/a.ivd"_s);
    EXPECT_EQ(menu(), QStringList({u"&1 - a"_s, u"&2 - a"_s, u"&3 - x"_s, u"&4 - y"_s}));
}

// The mark and the kept entry

TEST_F(RecentProjectsTest, a_clean_end_takes_the_mark_out_of_the_first_alone) {
    start({bare(u"a"_s) + u"|FILEOPEN"_s, bare(u"b"_s) + u"|FILEOPEN"_s});
    recent.clearOpenMarker();
    EXPECT_EQ(listed(), QStringList({bare(u"a"_s), bare(u"b"_s) + u"|FILEOPEN"_s}));
}

TEST_F(RecentProjectsTest, a_clean_end_leaves_the_mark_of_another_programs_project) {
    start({bare(u"a"_s)});
    project.state.projectFileName = u"/p/a.ivd"_s;
    recent.projectOpened(bare(u"a"_s), u"/p/a.ivd"_s);
    list({bare(u"n"_s) + u"|FILEOPEN"_s, bare(u"a"_s) + u"|FILEOPEN"_s});
    recent.clearOpenMarker();
    EXPECT_EQ(listed(), QStringList({bare(u"n"_s) + u"|FILEOPEN"_s, bare(u"a"_s)}));
}

TEST_F(RecentProjectsTest, the_entry_that_is_kept_is_the_projects_own) {
    start({bare(u"a"_s)});
    project.state.projectFileName = u"/p/a.ivd"_s;
    recent.projectOpened(bare(u"a"_s), u"/p/a.ivd"_s);
    list({bare(u"n"_s) + u"|FILEOPEN"_s, u"/p/a.ivd|1||FILEOPEN"_s});
    recent.keepFirstEntry();
    list({bare(u"n"_s) + u"|FILEOPEN"_s, u"/p/a.ivd|2||FILEOPEN"_s});
    recent.restoreFirstEntry();
    EXPECT_EQ(listed(), QStringList({bare(u"n"_s) + u"|FILEOPEN"_s, u"/p/a.ivd|1|"_s}));
}

TEST_F(RecentProjectsTest, the_entry_goes_back_to_what_it_was_at_the_opening) {
    start({bare(u"b"_s), u"/p/a.ivd|1|Easel"_s});
    recent.projectOpened(recent.entry(2), u"/p/a.ivd"_s);
    project.fields.txtFileNo.setText(u"2"_s);
    recent.projectSaved(u"/p/a.ivd"_s, false);
    EXPECT_EQ(listed()[0], u"/p/a.ivd|2||FILEOPEN");
    recent.restoreFirstEntry();
    EXPECT_EQ(listed(), QStringList({u"/p/a.ivd|1|Easel"_s, bare(u"b"_s)}));
}

TEST_F(RecentProjectsTest, the_kept_entry_follows_where_another_program_has_moved_it) {
    start({bare(u"a"_s)});
    recent.projectOpened(bare(u"a"_s), u"/p/a.ivd"_s);
    list({bare(u"n"_s), u"/p/a.ivd|changed||FILEOPEN"_s});
    recent.restoreFirstEntry();
    EXPECT_EQ(listed(), QStringList({bare(u"n"_s), bare(u"a"_s)}));
}

TEST_F(RecentProjectsTest, without_a_kept_entry_nothing_is_restored) {
    start({bare(u"a"_s)});
    recent.restoreFirstEntry();
    EXPECT_EQ(listed(), QStringList({bare(u"a"_s)}));
}

TEST_F(RecentProjectsTest, settings_that_fail_leave_the_list_without_a_word) {
    start({bare(u"a"_s)});
    store.cannotRead = true;
    recent.addRecentEntry(bare(u"b"_s), true);
    EXPECT_FALSE(recent.projectOpened(bare(u"a"_s), u"/p/a.ivd"_s));
    recent.clearOpenMarker();
    recent.dropEntry(u"/p/a.ivd"_s);
    store.cannotRead = false;
    EXPECT_EQ(listed(), QStringList({bare(u"a"_s)}));
}

TEST_F(RecentProjectsTest, a_file_number_of_any_length_leaves_the_mark_of_the_open_project) {
    const QString path = u"/p/easel.ivd"_s;
    for (const QString& text : {u"x"_s, u"\u92fc"_s, u"\U0001F600"_s})
        for (const bool hasTitle : {false, true}) {
            list({});
            project.fields.txtFileNo.setText(text.repeated(20000));
            project.fields.txtInventionTitle.setText(hasTitle ? text.repeated(20000) : u"Easel"_s);
            recent.projectSaved(path, false);
            const QString entry = listed().value(0);
            EXPECT_TRUE(entry.startsWith(path + u'|' + text)) << qPrintable(entry.left(50));
            EXPECT_TRUE(entry.endsWith((hasTitle ? text : u"Easel"_s) + u"|FILEOPEN"_s));
            EXPECT_EQ(entry.count(u'|'), 3);
            recent.loadRecentProjects(false);
            EXPECT_EQ(menu(), QStringList(u"&1 - easel (RECOVERED FILE)"_s));
        }
}
