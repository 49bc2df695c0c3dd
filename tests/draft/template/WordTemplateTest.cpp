#include "draft/template/WordTemplate.h"

#include "support/ErrorOf.h"
#include "support/FakeWordProcessor.h"
#include "support/PrintQt.h"

#include <QTemporaryDir>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class WordTemplateTest : public testing::Test {
protected:
    /// Loads a document of this text.
    void load(const QString& text) {
        writeFile(path(u"template.doc"_s), text.toUtf8());
        EXPECT_TRUE(document.Load(u"WORDTEMPLATE"_s, path(u"template.doc"_s)));
    }

    [[nodiscard]] QString path(const QString& name) const { return folder.filePath(name); }

    QTemporaryDir folder;
    FakeWordProcessor word;
    WordTemplate document{word};
};

const QString List = u"All: <!--BEGIN Names--> [and][name]<!--END Names-->, done"_s;

} // namespace

// Documents

TEST_F(WordTemplateTest, loading_makes_a_document_of_the_file_and_deletes_the_file) {
    load(u"Dear [name]"_s);
    EXPECT_EQ(word.text, u"Dear [name]"_s);
    EXPECT_EQ(document.path(), path(u"template.doc"_s));
    EXPECT_FALSE(QFileInfo::exists(path(u"template.doc"_s)));
}

TEST_F(WordTemplateTest, opening_leaves_the_file) {
    writeFile(path(u"letter.doc"_s), "Dear Ann");
    EXPECT_TRUE(document.openWord(path(u"letter.doc"_s)));
    EXPECT_EQ(word.text, u"Dear Ann"_s);
    EXPECT_TRUE(QFileInfo::exists(path(u"letter.doc"_s)));
}

TEST_F(WordTemplateTest, loading_and_opening_what_is_not_there_is_false_and_tells_why) {
    EXPECT_FALSE(document.Load(u"WORDTEMPLATE"_s, path(u"nowhere.doc"_s)));
    EXPECT_EQ(document.failure()->source(), path(u"nowhere.doc"_s));
    EXPECT_FALSE(document.openWord(path(u"nowhere.doc"_s)));
    EXPECT_EQ(document.failure()->source(), path(u"nowhere.doc"_s));
}

TEST_F(WordTemplateTest, a_file_that_cannot_be_made_a_document_is_not_deleted) {
    writeFile(path(u"template.doc"_s), "Dear [name]");
    word.failingOperation = 1;
    EXPECT_FALSE(document.Load(u"WORDTEMPLATE"_s, path(u"template.doc"_s)));
    EXPECT_TRUE(QFileInfo::exists(path(u"template.doc"_s)));
}

TEST_F(WordTemplateTest, without_a_word_processor_loading_is_false) {
    word.installed = false;
    writeFile(path(u"template.doc"_s));
    EXPECT_FALSE(document.Load(u"WORDTEMPLATE"_s, path(u"template.doc"_s)));
    EXPECT_EQ(document.failure()->description(), u"no word processor is installed"_s);
}

TEST_F(WordTemplateTest, a_success_forgets_the_failure_before_it) {
    EXPECT_FALSE(document.Load(u"WORDTEMPLATE"_s, path(u"nowhere.doc"_s)));
    load(u"Dear"_s);
    EXPECT_FALSE(document.failure().has_value());
}

TEST_F(WordTemplateTest, loading_again_quits_the_first_word_processor) {
    load(u"one"_s);
    load(u"two"_s);
    EXPECT_EQ(word.running, 1);
    EXPECT_EQ(word.text, u"two"_s);
}

TEST_F(WordTemplateTest, saving_writes_the_document_under_either_name) {
    load(u"Dear Ann"_s);
    EXPECT_TRUE(document.Save(path(u"a.doc"_s)));
    EXPECT_TRUE(document.SaveAs(path(u"b.doc"_s)));
    EXPECT_EQ(contentOf(path(u"a.doc"_s)), "Dear Ann");
    EXPECT_EQ(contentOf(path(u"b.doc"_s)), "Dear Ann");
}

TEST_F(WordTemplateTest, saving_into_a_folder_that_is_missing_is_false) {
    load(u"Dear Ann"_s);
    EXPECT_FALSE(document.SaveAs(path(u"nowhere/a.doc"_s)));
    EXPECT_EQ(document.failure()->source(), path(u"nowhere/a.doc"_s));
}

TEST_F(WordTemplateTest, unloading_closes_the_document_and_the_end_quits_the_word_processor) {
    {
        WordTemplate other(word);
        writeFile(path(u"template.doc"_s), "Dear");
        EXPECT_TRUE(other.Load(u"WORDTEMPLATE"_s, path(u"template.doc"_s)));
        other.Unload();
        EXPECT_FALSE(word.documentIsOpen);
        EXPECT_EQ(word.running, 1);
    }
    EXPECT_EQ(word.running, 0);
}

TEST_F(WordTemplateTest, a_template_that_was_never_loaded_starts_nothing_and_does_nothing) {
    EXPECT_EQ(word.running, 0);
    EXPECT_FALSE(document.SaveAs(path(u"a.doc"_s)));
    EXPECT_EQ(errorOf([&] { document.SetItem(u"name"_s, u"Ann"_s); }).number(), 91);
    EXPECT_EQ(errorOf([&] { document.Unload(); }).number(), 91);
}

TEST_F(WordTemplateTest, printing_prints_the_document) {
    load(u"Dear Ann"_s);
    document.Wordprint();
    EXPECT_EQ(word.printed, QStringList(u"Dear Ann"_s));
}

TEST_F(WordTemplateTest, the_version_is_the_word_processors) {
    load({});
    EXPECT_EQ(document.checkWordVersion(), u"1.0"_s);
}

TEST_F(WordTemplateTest, the_header_carries_the_file_number) {
    load({});
    document.setHeader(u"QF-7"_s);
    EXPECT_EQ(word.header, u"Confidential Provisional Patent Application (QF-7)"_s);
}

TEST_F(WordTemplateTest, list_numbers_start_with_the_number) {
    load({});
    document.ResetListNum(4);
    EXPECT_EQ(word.listFormats, QStringList(u"3/2 4.%2."_s));
}

TEST_F(WordTemplateTest, failures_of_other_operations_reach_the_caller) {
    load(u"Dear [name]"_s);
    word.failingOperation = 2;
    EXPECT_EQ(errorOf([&] { document.SetItem(u"name"_s, u"Ann"_s); }).number(), 462);
}

// Items

TEST_F(WordTemplateTest, an_item_takes_the_place_of_its_mark) {
    load(u"Dear [name], hello"_s);
    document.SetItem(u"name"_s, u"Ann"_s);
    EXPECT_EQ(word.text, u"Dear Ann, hello"_s);
}

TEST_F(WordTemplateTest, an_empty_value_removes_the_mark) {
    load(u"Dear [name], hello"_s);
    document.SetItem(u"name"_s, {});
    EXPECT_EQ(word.text, u"Dear , hello"_s);
}

TEST_F(WordTemplateTest, each_call_takes_the_next_mark_and_the_search_wraps_round) {
    load(u"[a] [b] [a] [a]"_s);
    document.SetItem(u"b"_s, u"-"_s);
    for (const QString& value : {u"1"_s, u"2"_s, u"3"_s})
        document.SetItem(u"a"_s, value);
    EXPECT_EQ(word.text, u"3 - 1 2"_s);
}

TEST_F(WordTemplateTest, a_mark_within_a_value_is_left_to_a_later_call_of_its_name) {
    load(u"[a]."_s);
    document.SetItem(u"a"_s, u"<[a]>"_s);
    EXPECT_EQ(word.text, u"<[a]>."_s);
    document.SetItem(u"a"_s, u"x"_s);
    EXPECT_EQ(word.text, u"<x>."_s);
}

TEST_F(WordTemplateTest, a_line_end_in_a_value_starts_a_paragraph) {
    load(u"[a]."_s);
    document.SetItem(u"a"_s, u"one\r\n\ttwo"_s);
    EXPECT_EQ(word.text, u"one\r\ttwo."_s);
}

TEST_F(WordTemplateTest, an_item_without_a_mark_changes_nothing_and_leaves_the_selection) {
    load(u"[a] [b] [c]"_s);
    EXPECT_TRUE(document.SelectItem(u"b"_s));
    document.SetItem(u"z"_s, u"lost"_s);
    document.InsertLine(); // in the place of what is still selected
    EXPECT_EQ(word.text, u"[a] \r [c]"_s);
}

TEST_F(WordTemplateTest, marks_are_found_in_either_case) {
    load(u"[A/An] [a/an]"_s);
    document.SetItem(u"a/an"_s, u"an"_s);
    EXPECT_EQ(word.text, u"an [a/an]"_s);
}

TEST_F(WordTemplateTest, all_marks_are_set_at_once_when_asked_for) {
    load(u"[a] [b] [a]"_s);
    document.SetItem(u"a"_s, u"1"_s, true);
    EXPECT_EQ(word.text, u"1 [b] 1"_s);
    document.SetItem(u"z"_s, u"1"_s, true);
    EXPECT_EQ(word.text, u"1 [b] 1"_s);
}

TEST_F(WordTemplateTest, all_marks_are_set_once_also_when_the_value_holds_the_mark) {
    load(u"[a] [b] [a] [a]"_s);
    EXPECT_TRUE(document.SelectItem(u"b"_s));
    document.SetItem(u"a"_s, u"<[A]>"_s, true);
    EXPECT_EQ(word.text, u"<[A]> [b] <[A]> <[A]>"_s);
}

TEST_F(WordTemplateTest, a_search_may_begin_elsewhere) {
    load(u"[a] [a] [a] <!--T--> <!--T-->"_s);
    EXPECT_TRUE(document.SelectItem(u"a"_s, FakeWordProcessor::placeAt(5)));
    document.InsertLine();
    EXPECT_EQ(word.text, u"[a] [a] \r <!--T--> <!--T-->"_s);
    EXPECT_TRUE(document.SelectItem(u"a"_s, FakeWordProcessor::placeAt(1)));
    document.InsertLine();
    EXPECT_EQ(word.text, u"[a] \r \r <!--T--> <!--T-->"_s);
    EXPECT_TRUE(
        document.SelectTag(u"T"_s, FakeWordProcessor::placeAt(15), FakeWordProcessor::placeAt(16)));
    document.InsertLine();
    EXPECT_EQ(word.text, u"[a] \r \r <!--T--> \r"_s);
}

// Figures

TEST_F(WordTemplateTest, a_picture_takes_the_place_of_the_next_mark) {
    writeFile(path(u"fig.png"_s));
    load(u"<[fig]> <[fig]>"_s);
    document.SetFigure(u"fig"_s, path(u"fig.png"_s));
    EXPECT_EQ(word.text, u"<\uFFFC> <[fig]>"_s);
    EXPECT_EQ(word.pictures, QStringList(path(u"fig.png"_s)));
}

TEST_F(WordTemplateTest, a_picture_takes_the_place_of_all_marks_when_asked_for) {
    writeFile(path(u"fig.png"_s));
    load(u"<[fig]> <[fig]>"_s);
    document.SetFigure(u"fig"_s, path(u"fig.png"_s), true);
    EXPECT_EQ(word.text, u"<\uFFFC> <\uFFFC>"_s);
}

TEST_F(WordTemplateTest, a_picture_that_is_not_there_fails_where_a_mark_stands) {
    load(u"[fig]"_s);
    EXPECT_EQ(errorOf([&] { document.SetFigure(u"fig"_s, path(u"no.png"_s)); }).source(),
              path(u"no.png"_s));
    document.SetFigure(u"other"_s, path(u"no.png"_s)); // without a mark nothing happens
    EXPECT_EQ(word.text, u"[fig]"_s);
}

// Single characters

TEST_F(WordTemplateTest, single_characters_go_at_the_selection) {
    load(u"ab[x]cd"_s);
    document.SetItem(u"x"_s, {});
    document.DeleteSpace();
    EXPECT_EQ(word.text, u"abd"_s);
    document.deleteChar();
    EXPECT_EQ(word.text, u"ad"_s);
    document.InsertLine();
    EXPECT_EQ(word.text, u"a\rd"_s);
    document.deleteChar();
    document.DeleteLine();
    EXPECT_EQ(word.text, u"a"_s);
}

// Blocks

TEST_F(WordTemplateTest, a_block_is_selected_with_or_without_its_tags) {
    load(List);
    EXPECT_TRUE(document.SelectBlock(u"Names"_s, false));
    document.InsertLine();
    EXPECT_EQ(word.text, u"All: <!--BEGIN Names-->\r<!--END Names-->, done"_s);
    EXPECT_TRUE(document.SelectBlock(u"Names"_s, true));
    document.InsertLine();
    EXPECT_EQ(word.text, u"All: \r, done"_s);
}

TEST_F(WordTemplateTest, a_block_without_one_of_its_tags_is_not_found) {
    load(u"<!--BEGIN One--> <!--END Two-->"_s);
    EXPECT_FALSE(document.SelectBlock(u"One"_s, false));
    EXPECT_FALSE(document.SelectBlock(u"Two"_s, true));
}

TEST_F(WordTemplateTest, a_block_is_removed_whole_or_emptied) {
    load(List);
    document.RemoveBlock(u"Names"_s, false);
    EXPECT_EQ(word.text, u"All: <!--BEGIN Names--><!--END Names-->, done"_s);
    document.RemoveBlock(u"Names"_s, true);
    EXPECT_EQ(word.text, u"All: , done"_s);
    document.RemoveBlock(u"Names"_s, true);
    EXPECT_EQ(word.text, u"All: , done"_s);
}

TEST_F(WordTemplateTest, copies_stand_behind_the_body_each_behind_a_separator) {
    load(List);
    document.DuplicateBlock(u"Names"_s, 2, u","_s);
    EXPECT_EQ(word.text, u"All: <!--BEGIN Names--> [and][name], [and][name], [and][name]"
                         "<!--END Names-->, done"_s);
}

TEST_F(WordTemplateTest, after_the_copies_the_items_fill_them_in_turn) {
    load(u"[name] "_s + List);
    EXPECT_TRUE(document.SelectItem(u"name"_s));
    document.DuplicateBlock(u"Names"_s, 1, u","_s);
    for (const QString& name : {u"Ann"_s, u"Ed"_s})
        document.SetItem(u"name"_s, name);
    EXPECT_EQ(word.text, u"[name] All: <!--BEGIN Names--> [and]Ann, [and]Ed<!--END Names-->, "
                         "done"_s);
}

TEST_F(WordTemplateTest, no_copy_leaves_one_body_and_its_tags_and_no_separator) {
    load(List);
    document.DuplicateBlock(u"Names"_s, 0, u","_s);
    document.DuplicateBlock(u"Names"_s, -1, u","_s);
    EXPECT_EQ(word.text, List);
}

TEST_F(WordTemplateTest, copies_of_a_block_that_is_missing_change_nothing) {
    load(List);
    document.DuplicateBlock(u"Nobody"_s, 3, u","_s);
    EXPECT_EQ(word.text, List);
}

TEST_F(WordTemplateTest, an_empty_separator_puts_the_copies_side_by_side) {
    load(u"<!--BEGIN B-->[x]\r<!--END B-->\r"_s);
    document.DuplicateBlock(u"B"_s, 2, {});
    EXPECT_EQ(word.text, u"<!--BEGIN B-->[x]\r[x]\r[x]\r<!--END B-->\r"_s);
}

TEST_F(WordTemplateTest, the_tags_are_erased_and_the_body_stays) {
    load(List);
    document.RemoveBlockTag(u"Names"_s);
    EXPECT_EQ(word.text, u"All:  [and][name], done"_s);
    document.RemoveBlockTag(u"Names"_s);
    EXPECT_EQ(word.text, u"All:  [and][name], done"_s);
}

TEST_F(WordTemplateTest, the_position_after_the_tags_is_where_the_end_stood) {
    load(u"<!--BEGIN B-->x\r<!--END B-->\rnext"_s);
    document.RemoveBlockTag(u"B"_s);
    document.DeleteLine();
    EXPECT_EQ(word.text, u"x\rnext"_s);
}
