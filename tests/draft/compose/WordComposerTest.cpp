#include "draft/compose/WordComposer.h"

#include "draft/compose/WordComposition.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString NoFigures = u"THERE ARE NO FIGURES IN THIS PROVISIONAL APPLICATION."_s;
const QString Picture = u"\uFFFC"_s;

class WordComposerTest : public WordComposition {};

} // namespace

// The run

TEST_F(WordComposerTest, the_document_is_saved_and_the_word_processor_gone) {
    const QString text = composed().join(u'\n');
    EXPECT_EQ(QString::fromUtf8(contentOf(path(u"draft.doc"_s))), text);
    EXPECT_EQ(word.running, 0);
    EXPECT_EQ(word.operations.back(), u"closeDocument"_s);
    EXPECT_TRUE(prompts.boxes.empty());
    EXPECT_FALSE(composer.failure().has_value());
}

TEST_F(WordComposerTest, nothing_is_left_in_the_temporary_folder) {
    (void)composed();
    EXPECT_TRUE(QDir(folders.temporary).isEmpty());
}

TEST_F(WordComposerTest, for_the_printer_and_for_no_path_nothing_is_saved) {
    EXPECT_TRUE(composer.ExportToWord(u"Printer"_s));
    EXPECT_TRUE(composer.ExportToWord({}));
    EXPECT_FALSE(word.operations.contains(u"saveDocument"_s));
    EXPECT_FALSE(QFileInfo::exists(u"Printer"_s));
}

TEST_F(WordComposerTest, no_mark_and_no_tag_is_left) {
    const QString text = composed().join(u'\n');
    EXPECT_FALSE(text.contains(u'['));
    EXPECT_FALSE(text.contains(u"<!--"_s));
}

TEST_F(WordComposerTest, the_version_of_the_word_processor_is_kept) {
    EXPECT_EQ(composer.wordVersion(), u""_s);
    (void)composed();
    EXPECT_EQ(composer.wordVersion(), u"1.0"_s);
}

TEST_F(WordComposerTest, the_header_carries_the_trimmed_file_number) {
    fields.txtFileNo.setText(u"  QF-8 [I/WE] "_s);
    (void)composed();
    EXPECT_EQ(word.header, u"Confidential Provisional Patent Application (QF-8 [I/WE])"_s);
    EXPECT_EQ(word.operations.count(u"setHeader"_s), 2);
}

// Failures

TEST_F(WordComposerTest, without_a_word_processor_a_box_tells_of_the_template) {
    word.installed = false;
    EXPECT_FALSE(composer.ExportToWord(path(u"draft.doc"_s)));
    const FakePrompts::Box box{UserPrompts::Icon::Critical, u"Error"_s,
                               u"Can not open the word template"_s};
    EXPECT_EQ(prompts.boxes, std::vector{box});
    EXPECT_EQ(composer.failure()->description(), u"no word processor is installed"_s);
    EXPECT_TRUE(QDir(folders.temporary).isEmpty());
}

TEST_F(WordComposerTest, a_failure_at_any_moment_ends_it_with_no_file_and_no_word_processor) {
    (void)composed();
    const auto operations = static_cast<int>(word.operations.size());
    EXPECT_GT(operations, 200);
    for (int i = 1; i < operations; i += i < 20 ? 1 : 7) {
        SCOPED_TRACE(i);
        QFile::remove(path(u"draft.doc"_s));
        word.operations.clear();
        word.failingOperation = i;
        EXPECT_FALSE(composer.ExportToWord(path(u"draft.doc"_s)));
        EXPECT_EQ(composer.failure()->number(), 462);
        EXPECT_FALSE(QFileInfo::exists(path(u"draft.doc"_s)));
        EXPECT_EQ(word.running, 0);
    }
    EXPECT_EQ(prompts.boxes.size(), 1U); // of the first operation, which loads the template
}

TEST_F(WordComposerTest, a_word_processor_that_dies_once_the_document_is_saved_spoils_nothing) {
    const QString text = composed().join(u'\n');
    word.failingOperation = static_cast<int>(word.operations.size());
    word.operations.clear();
    QFile::remove(path(u"draft.doc"_s));
    EXPECT_TRUE(composer.ExportToWord(path(u"draft.doc"_s)));
    EXPECT_EQ(QString::fromUtf8(contentOf(path(u"draft.doc"_s))), text);
    EXPECT_FALSE(composer.failure().has_value());
    EXPECT_EQ(word.running, 0);
}

TEST_F(WordComposerTest, a_figure_whose_file_exists_nowhere_ends_it_with_no_file) {
    fields.txtAttachFig(0).setText(u"/nowhere/fig1.png"_s);
    fields.figureState(0).workingCopy = u"/nowhere/copy.png"_s;
    EXPECT_FALSE(composer.ExportToWord(path(u"draft.doc"_s)));
    EXPECT_EQ(composer.failure()->source(), u"/nowhere/copy.png"_s);
    EXPECT_FALSE(QFileInfo::exists(path(u"draft.doc"_s)));
    EXPECT_EQ(word.running, 0);
    EXPECT_TRUE(prompts.boxes.empty());
}

TEST_F(WordComposerTest, a_folder_that_is_missing_is_a_failure) {
    EXPECT_FALSE(composer.ExportToWord(path(u"nowhere/draft.doc"_s)));
    EXPECT_EQ(composer.failure()->source(), path(u"nowhere/draft.doc"_s));
    EXPECT_FALSE(QFileInfo::exists(path(u"nowhere"_s)));
}

TEST_F(WordComposerTest, a_main_element_without_descriptions_is_a_failure) {
    fields.setPanelCount(FieldGroup::Descriptions, 2);
    EXPECT_FALSE(composer.ExportToWord(path(u"draft.doc"_s)));
    EXPECT_EQ(composer.failure()->description(), u"Main Element 3 has no description"_s);
}

TEST_F(WordComposerTest, a_document_is_open_when_the_word_processor_says_so) {
    word.openDocuments = {u"/there/draft.doc"_s};
    EXPECT_TRUE(composer.checkDocFileOpenAndClose(u"/there/draft.doc"_s));
    EXPECT_FALSE(composer.checkDocFileOpenAndClose(u"/here/draft.doc"_s));
    EXPECT_EQ(word.running, 0);
}

// The first page

TEST_F(WordComposerTest, two_inventors_have_one_comma_and_one_blank_before_and) {
    EXPECT_EQ(paragraph(u"BE IT KNOWN"_s),
              u"BE IT KNOWN THAT WE, Ann B. Cole, a citizen of the United States, and Ed Fox, a "
              "citizen of Canada, have invented a new and useful widget holder of which the "
              "following is a specification:"_s);
}

TEST_F(WordComposerTest, one_inventor_is_I_without_an_and) {
    setCount(fields, FieldGroup::Inventors, 1);
    EXPECT_EQ(paragraph(u"BE IT KNOWN"_s),
              u"BE IT KNOWN THAT I, Ann B. Cole, a citizen of the United States, have invented a "
              "new and useful widget holder of which the following is a specification:"_s);
}

TEST_F(WordComposerTest, eight_inventors_stand_in_order) {
    setCount(fields, FieldGroup::Inventors, 8);
    for (int i = 0; i < 8; ++i) {
        fields.txtMIStep2(i).setText({});
        fields.txtNameStep2(i).setText(QString(QChar(u'A' + i)));
        fields.txtLastStep2(i).setText(u"X"_s);
        fields.cboCitizenshipStep2(i).setText(u"Chile"_s);
    }
    const QString citizen = u" X, a citizen of Chile"_s;
    EXPECT_TRUE(paragraph(u"BE IT KNOWN"_s)
                    .startsWith(u"BE IT KNOWN THAT WE, A"_s + citizen + u", B"_s + citizen));
    EXPECT_TRUE(paragraph(u"BE IT KNOWN"_s).contains(u", G"_s + citizen + u", and H"_s + citizen));
}

// Background, summary and objects

TEST_F(WordComposerTest, the_title_stands_in_lower_case_in_the_text_and_in_capitals_in_the_claims) {
    const QString text = composed().join(u'\n');
    EXPECT_EQ(text.count(u"widget holder"_s), 12);
    EXPECT_EQ(text.count(u"\nWidget Holder\n"_s), 1);
    EXPECT_EQ(text.count(u"LEGALLY VALID CLAIM FOR THE WIDGET HOLDER AND/OR"_s), 1);
}

TEST_F(WordComposerTest, the_sentences_around_the_general_terms_are_closed) {
    EXPECT_EQ(paragraph(u"Example embodiments in"_s),
              u"Example embodiments in general relate to fasteners and more specifically it "
              "relates to a widget holder for holding One Widget."_s);
    EXPECT_EQ(paragraph(u"An example"_s),
              u"An example embodiment of the present invention is directed to a fastener which "
              "includes a base, a Clip and a pin."_s);
    EXPECT_EQ(paragraph(u"One object"_s),
              u"One object is to provide a widget holder for holding One Widget."_s);
    EXPECT_EQ(paragraph(u"A widget"_s), u"A widget holder for holding One Widget. The widget "
                                        "holder generally includes a base, a Clip and a pin."_s);
}

TEST_F(WordComposerTest, the_articles_follow_the_title_and_keep_their_case) {
    fields.txtInventionTitle.setText(u"Easel"_s);
    EXPECT_TRUE(paragraph(u"Example embodiments in"_s).contains(u"relates to an easel for"_s));
    EXPECT_TRUE(paragraph(u"An easel"_s).startsWith(u"An easel for holding"_s));
}

TEST_F(WordComposerTest, objects_stand_each_in_a_paragraph_behind_a_tab_and_the_empty_line_stays) {
    EXPECT_EQ(
        paragraphsAt(u"\tAnother"_s, 3),
        QStringList({u"\tAnother object is to provide a Widget Holder that holds fast."_s,
                     u"\tAnother object is to provide a Widget Holder that lets go."_s, u""_s}));
}

TEST_F(WordComposerTest, the_empty_line_behind_a_single_object_is_deleted) {
    setCount(fields, FieldGroup::Objects, 1);
    const QStringList lines = paragraphsAt(u"\tAnother"_s, 2);
    EXPECT_TRUE(lines[1].startsWith(u"Other objects and advantages of the various"_s));
}

// Figures

TEST_F(WordComposerTest, figures_are_described_one_paragraph_each_and_without_a_tab) {
    setCount(fields, FieldGroup::Figures, 2);
    attachFigure(1);
    fields.cboFigureType(1).setText(u"exploded view"_s);
    fields.txtFigureDetail(1).setText(u"one\r\ntwo"_s);
    EXPECT_EQ(paragraphsAt(u"FIGURE 1:"_s, 4),
              QStringList({u"FIGURE 1: Figure 1 is an upper perspective view of the present "
                           "invention. The holder is open. "_s,
                           u"FIGURE 2: Figure 2 is an exploded view of the present invention. "
                           "One. "_s,
                           u"\tTwo. "_s, u"DETAILED DESCRIPTION"_s}));
}

TEST_F(WordComposerTest, drawings_have_two_line_ends_between_them) {
    setCount(fields, FieldGroup::Figures, 3);
    attachFigure(1);
    attachFigure(2);
    EXPECT_EQ(paragraphsAt(u"DRAWINGS"_s, 9),
              QStringList({u"DRAWINGS"_s, u' ' + Picture, u"FIG. 1"_s, u""_s, u' ' + Picture,
                           u"FIG. 2"_s, u""_s, u' ' + Picture, u"FIG. 3"_s}));
    EXPECT_EQ(word.pictures,
              QStringList({path(u"fig1.png"_s), path(u"fig2.png"_s), path(u"fig3.png"_s)}));
}

TEST_F(WordComposerTest, without_figures_both_places_carry_the_sentence_once) {
    setCount(fields, FieldGroup::Figures, 0);
    EXPECT_EQ(composed().join(u'\n').count(NoFigures), 2);
    EXPECT_EQ(paragraph(u"THERE"_s), NoFigures + u"  "_s);
    EXPECT_EQ(paragraphsAt(u"DRAWINGS"_s, 4),
              QStringList({u"DRAWINGS"_s, NoFigures + u' ', u""_s, u"INDEX OF ELEMENTS"_s}));
    EXPECT_TRUE(word.pictures.isEmpty());
}

TEST_F(WordComposerTest, the_working_copy_stands_in_for_a_picture_that_is_gone) {
    fields.txtAttachFig(0).setText(u"/nowhere/fig1.png"_s);
    fields.figureState(0).workingCopy = path(u"fig1.png"_s);
    (void)composed();
    EXPECT_EQ(word.pictures, QStringList(path(u"fig1.png"_s)));
}

// The detailed description

TEST_F(WordComposerTest, each_main_element_has_its_heading_and_three_texts_behind_tabs) {
    EXPECT_EQ(paragraphsAt(u"Base Of Steel"_s, 7),
              QStringList({u"Base Of Steel"_s, u"\tBase of steel described. "_s, u""_s,
                           u"\tBase of steel in detail. "_s, u""_s, u"\tBase of steel varied. "_s,
                           u"Clip"_s}));
    EXPECT_EQ(paragraphsAt(u"\tPin varied"_s, 2),
              QStringList({u"\tPin varied. "_s,
                           u"Connections of Main Elements and Sub-Elements of Invention"_s}));
}

TEST_F(WordComposerTest, later_paragraphs_of_a_text_have_their_tabs) {
    fields.txtOperation.setText(u"press it\r\nlet go"_s);
    EXPECT_EQ(paragraphsAt(u"\tPress it"_s, 2), QStringList({u"\tPress it. "_s, u"\tLet go. "_s}));
}

TEST_F(WordComposerTest, the_closing_texts_follow_their_headings) {
    EXPECT_EQ(paragraphsAt(u"Connections of"_s, 6),
              QStringList({u"Connections of Main Elements and Sub-Elements of Invention"_s,
                           u"\tThe clip sits on the base. "_s,
                           u"Alternative Embodiments of Invention"_s, u"\tA screw instead. "_s,
                           u"Operation of Preferred Embodiment"_s, u"\tPress the clip. "_s}));
}

TEST_F(WordComposerTest, only_an_exactly_empty_field_says_that_there_are_no_alternatives) {
    fields.txtDesAlterative.setText({});
    EXPECT_EQ(paragraphsAt(u"Alternative"_s, 2)[1],
              u"\tThere are no alternative variations at this time."_s);
    fields.txtDesAlterative.setText(u"  "_s);
    EXPECT_EQ(paragraphsAt(u"Alternative"_s, 2)[1], u"\t"_s);
}

// The index

TEST_F(WordComposerTest, each_line_of_the_index_brings_its_line_end) {
    EXPECT_EQ(paragraphsAt(u"INDEX"_s, 8),
              QStringList({u"INDEX OF ELEMENTS"_s, u"10:   Base of Steel "_s, u""_s,
                           u"20:   Clip "_s, u"21:   Spring "_s, u""_s, u"30:   Pin "_s, u""_s}));
}

TEST_F(WordComposerTest, numerals_of_three_digits_have_three_blanks_too) {
    setCount(fields, FieldGroup::MainElements, 10);
    fields.txtElementName(9).setText(u"gear of pin"_s);
    EXPECT_EQ(paragraph(u"100"_s), u"100:   Gear of Pin "_s);
}

TEST_F(WordComposerTest, the_index_is_copied_by_the_tables_and_filled_by_the_elements) {
    fields.setPanelCount(FieldGroup::SubElements, 4); // one table more than elements
    const QString marks = u"[Element-1][Element-2][Element-3][Element-4][Element-5]"
                          "[Element-6][Element-7][Element-8][Element-9][Element-10]"_s;
    EXPECT_EQ(paragraphsAt(u"30:"_s, 3), QStringList({u"30:   Pin "_s, marks, u""_s}));
}

TEST_F(WordComposerTest, a_table_too_few_leaves_the_marks_of_the_sub_elements) {
    fields.setPanelCount(FieldGroup::SubElements, 2);
    const QStringList lines = paragraphsAt(u"INDEX"_s, 5);
    EXPECT_EQ(lines[1], u"10:   Base of Steel "_s);
    EXPECT_EQ(lines[3], u"20:   Clip "_s);
    EXPECT_FALSE(lines.join(u' ').contains(u"30:"_s)); // there is no copy for the third
}

// What was typed

TEST_F(WordComposerTest, marks_and_tags_in_what_was_typed_come_out_as_typed) {
    const QString marks = u"[1-INVENTION TITLE] [a/an] [5-GENERAL] [object] [FIG. N] [Element-2] "
                          "[opening bracket] [less-than sign] <!--BEGIN Disclosing Index--> "
                          "<!--END Disclosing Object--> [[ ]] <!-- [I/WE]"_s;
    for (Field* field : {&fields.txtPurpose, &fields.txtMainElement, &fields.txtObject(0),
                         &fields.txtElementSub1(1)})
        field->setText(marks);
    const QString text = composed().join(u'\n');
    EXPECT_EQ(text.count(marks), 3 + 3 + 1);
    EXPECT_EQ(text.count(u'[') + text.count(u"<!--"_s),
              8 * (marks.count(u'[') + marks.count(u"<!--"_s)));
}

TEST_F(WordComposerTest, marks_and_tags_in_the_index_come_out_with_its_capitals) {
    fields.txtElementSub1(1).setText(u"[element-3] <!--end x-->"_s);
    EXPECT_EQ(paragraph(u"21:"_s), u"21:   [element-3] <!--end X--> "_s);
}

TEST_F(WordComposerTest, line_ends_of_all_kinds_and_surrogates_come_out) {
    fields.txtOperation.setText(u"press \U0001F58B\nhold\rgo\r\nend"_s);
    EXPECT_EQ(paragraphsAt(u"\tPress"_s, 4),
              QStringList({u"\tPress \U0001F58B"_s, u"hold"_s, u"go. "_s, u"\tEnd. "_s}));
}
