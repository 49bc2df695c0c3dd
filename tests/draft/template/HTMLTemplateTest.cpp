#include "draft/template/HTMLTemplate.h"

#include "support/ErrorOf.h"
#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/PeakMemory.h"
#include "support/PrintQt.h"

#include <QTemporaryDir>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString Page = u"page"_s;
const QString Out = u"out"_s;

QString begin(const QString& block) {
    return u"&lt;!--BEGIN "_s + block + u"--&gt;"_s;
}

QString end(const QString& block) {
    return u"&lt;!--END "_s + block + u"--&gt;"_s;
}

QString blockOf(const QString& name, const QString& body) {
    return begin(name) + body + end(name);
}

class HTMLTemplateTest : public testing::Test {
protected:
    [[nodiscard]] QString path(const QString& name) const { return folder_.filePath(name); }

    void load(const QString& text, const QString& name = Page) { load(text.toUtf8(), name); }

    void load(const QByteArray& bytes, const QString& name = Page) {
        writeFile(path(u"template.htm"_s), bytes);
        ASSERT_TRUE(page.Load(name, path(u"template.htm"_s)));
    }

    /// What a file of these bytes has become after loading.
    QString loaded(const QByteArray& bytes) {
        page = HTMLTemplate();
        load(bytes);
        return rendered(Page);
    }

    QString rendered(const QString& block) {
        page.Parse(Out, block, {});
        return page.p(Out);
    }

    HTMLTemplate page;

private:
    QTemporaryDir folder_;
};

void expectError(const Error& error, qint64 number, const QString& description,
                 const QString& source) {
    EXPECT_EQ(error.number(), number);
    EXPECT_EQ(error.description(), description);
    EXPECT_EQ(error.source(), source);
}

} // namespace

// Load

TEST_F(HTMLTemplateTest, an_empty_path_loads_nothing) {
    EXPECT_FALSE(page.Load(Page, {}));
    expectError(errorOf([&] { page.Parse(Out, Page, {}); }), 10000, u"Block page Not Exists"_s,
                u"Template Class"_s);
}

TEST_F(HTMLTemplateTest, every_line_of_a_file_ends_in_a_carriage_return_and_line_feed) {
    EXPECT_EQ(loaded("one\r\ntwo\r\n"), u"one\r\ntwo\r\n"_s);
    EXPECT_EQ(loaded("one\ntwo\n"), u"one\r\ntwo\r\n"_s);
    EXPECT_EQ(loaded("one\r\ntwo\nthree\r\n"), u"one\r\ntwo\r\nthree\r\n"_s);
}

TEST_F(HTMLTemplateTest, a_file_without_a_final_line_end_gains_one) {
    EXPECT_EQ(loaded("one"), u"one\r\n"_s);
    EXPECT_EQ(loaded("one\r\ntwo"), u"one\r\ntwo\r\n"_s);
    EXPECT_EQ(loaded("one\ntwo"), u"one\r\ntwo\r\n"_s);
}

TEST_F(HTMLTemplateTest, empty_lines_are_lines) {
    EXPECT_EQ(loaded("\n"), u"\r\n"_s);
    EXPECT_EQ(loaded("\r\n\r\n"), u"\r\n\r\n"_s);
    EXPECT_EQ(loaded("one\n\n\ntwo\n\n"), u"one\r\n\r\n\r\ntwo\r\n\r\n"_s);
}

TEST_F(HTMLTemplateTest, an_empty_file_is_an_empty_block) {
    EXPECT_EQ(loaded(""), u""_s);
}

TEST_F(HTMLTemplateTest, a_file_is_read_as_utf_8) {
    EXPECT_EQ(loaded("Ren\xC3\xA9"
                     "e \xF0\x9F\x96\x8B\n"),
              u"Ren\u00E9e \U0001F58B\r\n"_s);
    EXPECT_EQ(loaded("\xFF\xFE\n"), u"\uFFFD\uFFFD\r\n"_s);
}

TEST_F(HTMLTemplateTest, a_file_that_cannot_be_read_is_named) {
    EXPECT_EQ(errorOf([&] { page.Load(Page, path(u"missing.htm"_s)); }).source(),
              path(u"missing.htm"_s));
    EXPECT_EQ(errorOf([&] { page.Load(Page, path(u"."_s)); }).source(), path(u"."_s));
}

TEST_F(HTMLTemplateTest, a_name_can_be_loaded_once) {
    load(u"one"_s);
    expectError(errorOf([&] { page.Load(Page, path(u"template.htm"_s)); }), 457,
                u"Block page exists already"_s, u"Template Class"_s);
}

// SaveAs

TEST_F(HTMLTemplateTest, a_saved_text_gains_a_line_end) {
    page.SaveAs(path(u"out.htm"_s), u"one\r\nRen\u00E9e\r\n"_s);
    EXPECT_EQ(contentOf(path(u"out.htm"_s)), QByteArray("one\r\nRen\xC3\xA9"
                                                        "e\r\n\r\n"));
    page.SaveAs(path(u"out.htm"_s), u""_s);
    EXPECT_EQ(contentOf(path(u"out.htm"_s)), QByteArray("\r\n"));
}

TEST_F(HTMLTemplateTest, a_saved_text_replaces_a_longer_file_whole) {
    writeFile(path(u"out.htm"_s), QByteArray(100'000, 'x'));
    page.SaveAs(path(u"out.htm"_s), u"short"_s);
    EXPECT_EQ(contentOf(path(u"out.htm"_s)), QByteArray("short\r\n"));
}

TEST_F(HTMLTemplateTest, a_missing_folder_is_no_place_for_a_file) {
    const QString target = path(u"missing/out.htm"_s);
    EXPECT_EQ(errorOf([&] { page.SaveAs(target, u"text"_s); }).source(), target);
    EXPECT_FALSE(QFileInfo::exists(path(u"missing"_s)));
}

TEST_F(HTMLTemplateTest, a_folder_is_not_replaced_by_a_file) {
    const QString target = path(u"folder"_s);
    ASSERT_TRUE(QDir().mkpath(target));
    EXPECT_EQ(errorOf([&] { page.SaveAs(target, u"text"_s); }).source(), target);
    EXPECT_TRUE(QFileInfo(target).isDir());
}

TEST_F(HTMLTemplateTest, an_empty_path_is_no_place_for_a_file) {
    errorOf([&] { page.SaveAs({}, u"text"_s); });
}

TEST_F(HTMLTemplateTest, a_full_disk_leaves_the_old_file_and_nothing_beside_it) {
    constexpr int Free = 100'000;
    const QString target = path(u"out.htm"_s);
    writeFile(target, "old");
    for (const int length : {Free - 1, Free + 1, 10 * Free}) {
        const FullDisk disk(Free);
        const Error error = errorOf([&] { page.SaveAs(target, QString(length, u'x')); });
        EXPECT_EQ(error.source(), target);
        EXPECT_EQ(error.description(), u"File too large"_s);
        ASSERT_EQ(contentOf(target).size(), 3) << "after " << length << " characters";
        EXPECT_EQ(QDir(path(u"."_s)).entryList(QDir::Files | QDir::Hidden),
                  QStringList(u"out.htm"_s));
    }
}

TEST_F(HTMLTemplateTest, a_disk_without_room_for_one_line_leaves_the_old_file) {
    writeFile(path(u"out.htm"_s), "old");
    const FullDisk disk(1);
    const Error error = errorOf([&] { page.SaveAs(path(u"out.htm"_s), u"short"_s); });
    EXPECT_EQ(error.source(), path(u"out.htm"_s));
    EXPECT_EQ(error.description(), u"File too large"_s);
    EXPECT_EQ(contentOf(path(u"out.htm"_s)), QByteArray("old"));
}

// SetItem, UnSetItem, p, HTMLSource

TEST_F(HTMLTemplateTest, the_last_value_of_an_item_wins) {
    page.SetItem(u"a"_s, u"one"_s);
    page.SetItem(u"a"_s, u"two"_s);
    EXPECT_EQ(page.p(u"a"_s), u"two"_s);
}

TEST_F(HTMLTemplateTest, a_value_can_be_added_behind_another) {
    page.SetItem(u"a"_s, u"one"_s, true);
    page.SetItem(u"a"_s, u"two"_s, true);
    EXPECT_EQ(page.p(u"a"_s), u"onetwo"_s);
}

TEST_F(HTMLTemplateTest, an_unknown_item_is_an_error_with_a_source_of_its_own) {
    const auto ask = [&] { return page.p(u"a"_s); };
    expectError(errorOf(ask), 10000, u"Item a Not Exists"_s, u"HTML Template Class"_s);
    page.SetItem(u"A"_s, u"one"_s);
    expectError(errorOf(ask), 10000, u"Item a Not Exists"_s, u"HTML Template Class"_s);
}

TEST_F(HTMLTemplateTest, an_item_that_was_unset_is_unknown) {
    load(u"[a]"_s);
    page.SetItem(u"a"_s, u"one"_s);
    page.UnSetItem(u"a"_s);
    page.UnSetItem(u"never set"_s);
    errorOf([&] { return page.p(u"a"_s); });
    EXPECT_EQ(rendered(Page), u"[a]\r\n"_s);
}

TEST_F(HTMLTemplateTest, the_stored_source_is_empty) {
    load(u"text"_s);
    EXPECT_EQ(rendered(Page), u"text\r\n"_s);
    EXPECT_EQ(page.HTMLSource(), u""_s);
}

// SetBlock

TEST_F(HTMLTemplateTest, a_block_is_cut_out_and_leaves_its_placeholder) {
    load(u"<"_s + blockOf(u"Row"_s, u"body"_s) + u">"_s);
    page.SetBlock(Page, u"Row"_s, u"ROWS"_s);
    EXPECT_EQ(rendered(Page), u"<[ROWS]>\r\n"_s);
    EXPECT_EQ(rendered(u"Row"_s), u"body"_s);
}

TEST_F(HTMLTemplateTest, without_a_placeholder_the_blocks_name_stands_there) {
    load(blockOf(u"Row"_s, u"1"_s) + blockOf(u"Cell"_s, u"2"_s));
    page.SetBlock(Page, u"Row"_s);
    page.SetBlock(Page, u"Cell"_s, u""_s);
    EXPECT_EQ(rendered(Page), u"[Row][Cell]\r\n"_s);
}

TEST_F(HTMLTemplateTest, the_placeholder_has_the_case_in_which_it_is_given) {
    load(blockOf(u"ROW"_s, u"body"_s));
    page.SetBlock(Page, u"row"_s);
    EXPECT_EQ(rendered(Page), u"[row]\r\n"_s);
    EXPECT_EQ(rendered(u"row"_s), u"body"_s);
    errorOf([&] { rendered(u"ROW"_s); });
}

TEST_F(HTMLTemplateTest, the_marks_of_a_block_are_found_in_any_case) {
    load(u"&LT;!--begin Disclosing Figure description--&gt;body&lt;!--end DISCLOSING FIGURE "
         "DESCRIPTION--&GT;"_s);
    page.SetBlock(Page, u"Disclosing Figure Description"_s, u"DFD"_s);
    EXPECT_EQ(rendered(Page), u"[DFD]\r\n"_s);
    EXPECT_EQ(rendered(u"Disclosing Figure Description"_s), u"body"_s);
}

TEST_F(HTMLTemplateTest, real_comments_are_no_marks) {
    load(u"<!--BEGIN Row-->body<!--END Row-->"_s);
    page.SetBlock(Page, u"Row"_s);
    EXPECT_EQ(rendered(Page), u"<!--BEGIN Row-->body<!--END Row-->\r\n"_s);
}

TEST_F(HTMLTemplateTest, a_block_crosses_lines) {
    load(u"1\n"_s + blockOf(u"Row"_s, u"\n2\n\n3\n"_s) + u"\n4"_s);
    page.SetBlock(Page, u"Row"_s);
    EXPECT_EQ(rendered(Page), u"1\r\n[Row]\r\n4\r\n"_s);
    EXPECT_EQ(rendered(u"Row"_s), u"\r\n2\r\n\r\n3\r\n"_s);
}

TEST_F(HTMLTemplateTest, a_block_runs_to_the_last_of_its_end_marks) {
    load(blockOf(u"Row"_s, u"1"_s) + u" between "_s + blockOf(u"Row"_s, u"2"_s) + u" behind"_s);
    page.SetBlock(Page, u"Row"_s);
    EXPECT_EQ(rendered(Page), u"[Row] behind\r\n"_s);
    EXPECT_EQ(rendered(u"Row"_s),
              u"1"_s + end(u"Row"_s) + u" between "_s + begin(u"Row"_s) + u"2"_s);
}

TEST_F(HTMLTemplateTest, the_name_of_a_block_is_a_pattern) {
    load(blockOf(u"Row 7"_s, u"body"_s));
    page.SetBlock(Page, u"Row [0-9]"_s, u"ROWS"_s);
    EXPECT_EQ(rendered(Page), u"[ROWS]\r\n"_s);
    EXPECT_EQ(rendered(u"Row [0-9]"_s), u"body"_s);
}

TEST_F(HTMLTemplateTest, a_name_with_signs_of_patterns_does_not_find_itself) {
    const QString text = blockOf(u"Row (1)?"_s, u"body"_s);
    load(text);
    page.SetBlock(Page, u"Row (1)?"_s);
    EXPECT_EQ(rendered(Page), text + u"\r\n"_s);
}

TEST_F(HTMLTemplateTest, a_block_takes_the_first_captured_group_also_when_its_name_has_one) {
    load(blockOf(u"Row 7"_s, u"body"_s));
    page.SetBlock(Page, u"Row (\\d)"_s, u"ROWS"_s);
    EXPECT_EQ(rendered(u"Row (\\d)"_s), u"7"_s);
}

TEST_F(HTMLTemplateTest, a_name_with_a_percent_sign_is_taken_as_it_is) {
    load(blockOf(u"%1 of %2"_s, u"body"_s));
    page.SetBlock(Page, u"%1 of %2"_s, u"%1"_s);
    EXPECT_EQ(rendered(Page), u"[%1]\r\n"_s);
}

TEST_F(HTMLTemplateTest, a_name_that_is_no_pattern_is_an_error) {
    load(blockOf(u"Row ("_s, u"body"_s));
    EXPECT_EQ(errorOf([&] { page.SetBlock(Page, u"Row ("_s); }).number(), 5017);
    EXPECT_EQ(errorOf([&] { page.SetBlock(u"none"_s, u"Row ("_s); }).number(), 10000);
}

TEST_F(HTMLTemplateTest, a_missing_parent_is_an_error) {
    expectError(errorOf([&] { page.SetBlock(u"none"_s, u"Row"_s); }), 10000,
                u"Block none Not Exists"_s, u"Template Class"_s);
}

TEST_F(HTMLTemplateTest, a_parent_without_the_marks_gives_no_block) {
    for (const QString& text :
         {u"plain"_s, begin(u"Row"_s) + u"no end"_s, end(u"Row"_s) + begin(u"Row"_s),
          begin(u"Row"_s) + end(u"Rows"_s)}) {
        page = HTMLTemplate();
        load(text);
        page.SetBlock(Page, u"Row"_s);
        EXPECT_EQ(rendered(Page), text + u"\r\n"_s);
        expectError(errorOf([&] { page.Parse(Out, u"Row"_s, {}); }), 10000,
                    u"Block Row Not Exists"_s, u"Template Class"_s);
    }
}

TEST_F(HTMLTemplateTest, a_block_name_can_be_used_once) {
    load(blockOf(u"Row"_s, u"1"_s));
    load(blockOf(u"Row"_s, u"2"_s), u"second"_s);
    page.SetBlock(Page, u"Row"_s);
    expectError(errorOf([&] { page.SetBlock(u"second"_s, u"Row"_s); }), 457,
                u"Block Row exists already"_s, u"Template Class"_s);
    EXPECT_EQ(rendered(u"Row"_s), u"1"_s);
}

TEST_F(HTMLTemplateTest, a_block_can_be_cut_out_of_a_block) {
    load(blockOf(u"Table"_s, u"<"_s + blockOf(u"Row"_s, u"[a]"_s) + u">"_s));
    page.SetBlock(Page, u"Table"_s);
    page.SetBlock(u"Table"_s, u"Row"_s, u"ROWS"_s);
    EXPECT_EQ(rendered(u"Table"_s), u"<[ROWS]>"_s);
}

// Parse

TEST_F(HTMLTemplateTest, a_new_item_ignores_the_separator) {
    load(u"text"_s);
    page.Parse(Out, Page, u"False"_s);
    EXPECT_EQ(page.p(Out), u"text\r\n"_s);
}

TEST_F(HTMLTemplateTest, with_a_separator_the_text_is_added_behind) {
    load(blockOf(u"Row"_s, u"<[a]>"_s));
    page.SetBlock(Page, u"Row"_s, u"ROWS"_s);
    for (const QString& value : {u"1"_s, u"2"_s, u"3"_s}) {
        page.SetItem(u"a"_s, value);
        page.Parse(u"ROWS"_s, u"Row"_s, u", "_s);
    }
    EXPECT_EQ(rendered(Page), u"<1>, <2>, <3>\r\n"_s);
}

TEST_F(HTMLTemplateTest, without_a_separator_the_text_replaces_the_old_one) {
    load(u"[a]"_s);
    page.SetItem(u"a"_s, u"1"_s);
    page.Parse(Out, Page, {});
    page.SetItem(u"a"_s, u"2"_s);
    page.Parse(Out, Page, {});
    EXPECT_EQ(page.p(Out), u"2\r\n"_s);
}

TEST_F(HTMLTemplateTest, an_empty_block_gives_an_empty_text_and_then_just_the_separator) {
    load(blockOf(u"Row"_s, u""_s));
    page.SetBlock(Page, u"Row"_s);
    page.Parse(Out, u"Row"_s, u"<br>"_s);
    EXPECT_EQ(page.p(Out), u""_s);
    page.Parse(Out, u"Row"_s, u"<br>"_s);
    EXPECT_EQ(page.p(Out), u"<br>"_s);
}

TEST_F(HTMLTemplateTest, a_block_that_does_not_exist_is_an_error_and_sets_nothing) {
    page.SetItem(Out, u"old"_s);
    expectError(errorOf([&] { page.Parse(Out, u"none"_s, {}); }), 10000, u"Block none Not Exists"_s,
                u"Template Class"_s);
    EXPECT_EQ(page.p(Out), u"old"_s);
}

TEST_F(HTMLTemplateTest, block_names_are_told_apart_by_case) {
    load(u"text"_s);
    expectError(errorOf([&] { page.Parse(Out, u"PAGE"_s, {}); }), 10000, u"Block PAGE Not Exists"_s,
                u"Template Class"_s);
}

TEST_F(HTMLTemplateTest, a_mark_that_a_user_typed_is_replaced_when_its_item_came_later) {
    load(u"[1-TITLE]; [3-PURPOSE]"_s);
    page.SetItem(u"1-TITLE"_s, u"a [3-PURPOSE] [9-NEVER SET]"_s);
    page.SetItem(u"3-PURPOSE"_s, u"[1-TITLE]"_s);
    EXPECT_EQ(rendered(Page), u"a [1-TITLE] [9-NEVER SET]; [1-TITLE]\r\n"_s);
}

TEST_F(HTMLTemplateTest, an_item_that_is_set_again_keeps_its_place) {
    load(u"[a] [b]"_s);
    page.SetItem(u"a"_s, u"old"_s);
    page.SetItem(u"b"_s, u"[a]"_s);
    page.SetItem(u"a"_s, u"[b]"_s);
    EXPECT_EQ(rendered(Page), u"[a] [a]\r\n"_s);
}

TEST_F(HTMLTemplateTest, the_target_of_a_block_takes_its_place_among_the_items) {
    load(blockOf(u"Row"_s, u"[before] [after]"_s));
    page.SetBlock(Page, u"Row"_s, u"ROWS"_s);
    page.SetItem(u"before"_s, u"<[ROWS]>"_s);
    page.Parse(u"ROWS"_s, u"Row"_s, {});
    page.SetItem(u"after"_s, u"[ROWS]"_s);
    EXPECT_EQ(rendered(Page), u"<<[ROWS]> [ROWS]>"_s.mid(1).chopped(1) + u"\r\n"_s);
}

// Texts that grow too long

TEST_F(HTMLTemplateTest, a_text_of_just_256_megabytes_passes) {
    load(blockOf(u"Row"_s, u"[a]"_s.repeated(128)));
    page.SetBlock(Page, u"Row"_s);
    page.SetItem(u"a"_s, QString(HTMLTemplate::MostCharacters / 128, u'x'));
    page.Parse(Out, u"Row"_s, {});
    EXPECT_EQ(page.p(Out).size(), 128 * 1024 * 1024);
}

TEST_F(HTMLTemplateTest, a_text_over_256_megabytes_is_an_error_and_takes_no_memory) {
    load(blockOf(u"Row"_s, u"[a]"_s.repeated(128) + u'.'));
    page.SetBlock(Page, u"Row"_s);
    page.SetItem(Out, u"old"_s);
    page.SetItem(u"a"_s, QString(HTMLTemplate::MostCharacters / 128, u'x'));
    const PeakMemory memory;
    EXPECT_EQ(errorOf([&] { page.Parse(Out, u"Row"_s, {}); }).number(), 14);
    EXPECT_LT(memory.growthInBytes(), 16 * 1024 * 1024);
    EXPECT_EQ(page.p(Out), u"old"_s);
}

TEST_F(HTMLTemplateTest, an_item_over_256_megabytes_is_an_error_and_keeps_its_text) {
    load(blockOf(u"Row"_s, u"[a]"_s.repeated(64)));
    page.SetBlock(Page, u"Row"_s);
    page.SetItem(u"a"_s, QString(HTMLTemplate::MostCharacters / 128, u'x'));
    page.Parse(Out, u"Row"_s, u","_s);
    EXPECT_EQ(errorOf([&] { page.Parse(Out, u"Row"_s, u","_s); }).number(), 14);
    EXPECT_EQ(page.p(Out).size(), HTMLTemplate::MostCharacters / 2);
}

TEST_F(HTMLTemplateTest, values_that_would_grow_to_gigabytes_take_no_more_memory_than_the_limit) {
    load(u"[a]"_s);
    page.SetItem(u"a"_s, u"[b]"_s.repeated(2'000));
    page.SetItem(u"b"_s, u"[c]"_s.repeated(2'000));
    page.SetItem(u"c"_s, u"[d]"_s.repeated(2'000));
    const PeakMemory memory;
    EXPECT_EQ(errorOf([&] { page.Parse(Out, Page, {}); }).number(), 14);
    EXPECT_LT(memory.growthInBytes(), 256 * 1024 * 1024);
}
