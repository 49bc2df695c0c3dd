#include "draft/compose/HtmlComposer.h"

#include "draft/compose/HtmlComposition.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString PlainBody =
    u"<body lang=EN-US style='tab-interval:21.0pt;text-justify-trim:punctuation'>"_s;
const QString PageBreak = u"<br clear=all style='page-break-before:always'>"_s;
const QString NoFigures = u"THERE ARE NO FIGURES IN THIS PROVISIONAL APPLICATION."_s;
const QString Indent = u"&nbsp;"_s.repeated(12);
const QString WideGap = u"&nbsp;"_s.repeated(9);

class HtmlComposerTest : public HtmlComposition {};

QString withoutTags(QString html) {
    static const QRegularExpression tag(u"<[^>]*>"_s);
    return html.remove(tag);
}

} // namespace

// Preview and export

TEST_F(HtmlComposerTest, a_preview_is_handed_back_and_nothing_is_written_but_the_template) {
    EXPECT_TRUE(preview().startsWith(u"<!DOCTYPE html>\r\n"_s));
    EXPECT_TRUE(preview().endsWith(u"</body>\r\n</html>\r\n"_s));
    EXPECT_FALSE(QFileInfo::exists(u"temp.html"_s));
    for (const QString& name : QDir(folders.temporary).entryList(QDir::Files))
        EXPECT_EQ(contentOf(folders.temporary + u'/' + name),
                  contentOf(u":/templates/HTMLTEMPLATE.htm"_s));
    EXPECT_FALSE(QDir(folders.temporary).isEmpty());
}

TEST_F(HtmlComposerTest, any_text_that_is_not_empty_asks_for_a_preview) {
    for (QString html : {u" "_s, u"x"_s, u"an older page"_s}) {
        EXPECT_TRUE(composer.ExportToHTML(path(u"draft.htm"_s), html));
        EXPECT_EQ(html, preview());
    }
    EXPECT_FALSE(QFileInfo::exists(path(u"draft.htm"_s)));
}

TEST_F(HtmlComposerTest, the_preview_has_the_locked_body_and_the_export_the_plain_one) {
    EXPECT_EQ(preview().count(lockedBody()), 1);
    EXPECT_EQ(preview().count(u"<body"_s), 1);
    const QString page = QString::fromUtf8(exported());
    EXPECT_EQ(page.count(PlainBody), 1);
    EXPECT_EQ(page.count(u"<body"_s), 1);
}

TEST_F(HtmlComposerTest, preview_and_export_differ_by_the_body_tag_and_the_closing_line_end) {
    fields.txtOperation.setText(u"press Ren\u00E9e's \U0001F58B [a/an] [never set]\r\n\r\ngo"_s);
    EXPECT_EQ(exported(), (preview().replace(lockedBody(), PlainBody) + u"\r\n"_s).toUtf8());
}

TEST_F(HtmlComposerTest, a_locked_body_tag_that_was_typed_becomes_plain_as_well) {
    fields.txtPurpose.setText(u"<"_s + lockedBody() + u">"_s);
    EXPECT_EQ(preview().count(lockedBody()), 4); // the purpose stands in three sentences
    EXPECT_EQ(QString::fromUtf8(exported()).count(PlainBody), 4);
}

TEST_F(HtmlComposerTest, an_export_replaces_an_older_file) {
    writeFile(path(u"draft.htm"_s), QByteArray(1'000'000, 'x'));
    EXPECT_EQ(exported(), exported());
    EXPECT_TRUE(contentOf(path(u"draft.htm"_s)).startsWith("<!DOCTYPE html>\r\n"));
}

TEST_F(HtmlComposerTest, a_finished_page_has_no_mark_left) {
    EXPECT_FALSE(preview().contains(u'['));
    EXPECT_FALSE(preview().contains(u"&lt;!--"_s));
}

TEST_F(HtmlComposerTest, composing_tells_the_user_nothing) {
    (void)preview();
    (void)exported();
    EXPECT_TRUE(prompts.boxes.empty());
    EXPECT_FALSE(composer.failure().has_value());
}

// The first page

TEST_F(HtmlComposerTest, the_file_number_stands_in_the_title_and_in_the_head_line) {
    fields.txtFileNo.setText(u"  QF-7 & <b>  "_s);
    EXPECT_TRUE(preview().contains(u"<title>Project - QF-7 & <b></title>"_s));
    EXPECT_EQ(paragraphs(u"file-number"_s),
              QStringList(u"Confidential Provisional Patent Application (QF-7 & <b>)"_s));
}

TEST_F(HtmlComposerTest, two_inventors_stand_in_one_sentence) {
    EXPECT_EQ(withoutTags(paragraph(u"BE IT KNOWN"_s)),
              u"BE IT KNOWN THAT WE, Ann B. Cole, a citizen of the United States,  and Ed Fox, a "
              "citizen of Canada, have invented a new and useful widget holder of which the "
              "following is a specification:"_s);
}

TEST_F(HtmlComposerTest, the_inventors_names_are_bold) {
    EXPECT_TRUE(paragraph(u"BE IT KNOWN"_s)
                    .startsWith(u"BE IT KNOWN THAT WE, <b>Ann B. Cole</b>, a citizen of the United "
                                "States,  and <b>Ed Fox</b>, a citizen of Canada, have"_s));
}

TEST_F(HtmlComposerTest, one_inventor_is_I_without_an_and) {
    setCount(fields, FieldGroup::Inventors, 1);
    EXPECT_EQ(withoutTags(paragraph(u"BE IT KNOWN"_s)),
              u"BE IT KNOWN THAT I, Ann B. Cole, a citizen of the United States, have invented a "
              "new and useful widget holder of which the following is a specification:"_s);
}

TEST_F(HtmlComposerTest, three_inventors_have_commas_between_all_and_one_and) {
    setCount(fields, FieldGroup::Inventors, 3);
    fields.txtNameStep2(2).setText(u"guy"_s);
    fields.txtLastStep2(2).setText(u"hall"_s);
    fields.cboCitizenshipStep2(2).setText(u"Philippines"_s);
    EXPECT_TRUE(withoutTags(paragraph(u"BE IT KNOWN"_s))
                    .startsWith(u"BE IT KNOWN THAT WE, Ann B. Cole, a citizen of the United "
                                "States,  Ed Fox, a citizen of Canada,  and Guy Hall, a citizen of "
                                "the Philippines, have"_s));
}

TEST_F(HtmlComposerTest, eight_inventors_are_all_named) {
    setCount(fields, FieldGroup::Inventors, 8);
    for (int i = 0; i < 8; ++i)
        fields.txtLastStep2(i).setText(u"number"_s + QString::number(i));
    const QString sentence = paragraph(u"BE IT KNOWN"_s);
    EXPECT_EQ(sentence.count(u"Number"_s), 8);
    EXPECT_EQ(sentence.count(u"and "_s), 2); // a new and useful
}

// Title, purpose and objects

TEST_F(HtmlComposerTest, the_second_page_is_headed_by_the_title_in_proper_case) {
    fields.txtInventionTitle.setText(u" WIDGET holder"_s);
    EXPECT_EQ(paragraphs(u"section"_s).first(), u"Widget Holder"_s);
}

TEST_F(HtmlComposerTest, the_background_names_the_general_field_in_numbers) {
    EXPECT_EQ(paragraph(u"Example embodiments in general"_s),
              u"Example embodiments in general relate to fasteners and more specifically it "
              "relates to a widget holder for holding One Widget."_s);
}

TEST_F(HtmlComposerTest, an_empty_plural_leaves_nothing_at_its_place) {
    fields.txtTechTitle.setText(u"glass"_s);
    EXPECT_TRUE(paragraph(u"Example embodiments in general"_s)
                    .startsWith(u"Example embodiments in general relate to  and more "_s));
}

TEST_F(HtmlComposerTest, the_summary_names_the_general_field_and_the_elements_as_typed) {
    EXPECT_EQ(paragraph(u"An example embodiment"_s),
              u"An example embodiment of the present invention is directed to a fastener which "
              "includes a base, a Clip and a pin."_s);
}

TEST_F(HtmlComposerTest, both_articles_follow_their_nouns) {
    fields.txtInventionTitle.setText(u"Umbrella"_s);
    fields.txtTechTitle.setText(u"Item"_s);
    EXPECT_TRUE(preview().contains(u"relates to an umbrella for holding"_s));
    EXPECT_TRUE(preview().contains(u"is directed to an item which includes"_s));
    EXPECT_TRUE(preview().contains(u"One object is to provide an umbrella for holding"_s));
    EXPECT_TRUE(preview().contains(u"An umbrella for holding One Widget. The umbrella gener"_s));
}

TEST_F(HtmlComposerTest, periods_inside_purpose_and_elements_are_left_alone) {
    fields.txtPurpose.setText(u" a 3.5 mm pin. then more "_s);
    fields.txtMainElement.setText(u"a 3.5 mm base."_s);
    EXPECT_TRUE(preview().contains(u"widget holder for a 3.5 mm pin. then more.</p>"_s));
    EXPECT_TRUE(preview().contains(u"which includes a 3.5 mm base.</p>"_s));
}

TEST_F(HtmlComposerTest, the_first_object_is_the_purpose) {
    EXPECT_EQ(paragraph(u"One object"_s),
              u"One object is to provide a widget holder for holding One Widget."_s);
}

TEST_F(HtmlComposerTest, every_other_object_stands_on_a_line_of_its_own) {
    EXPECT_EQ(paragraphs(u"objects"_s),
              QStringList(u"Another object is to provide a Widget Holder that holds fast.<br>"
                          "Another object is to provide a Widget Holder that lets go."_s));
}

TEST_F(HtmlComposerTest, the_running_title_is_in_lower_case_in_every_place) {
    fields.txtInventionTitle.setText(u"ZIP Line"_s);
    EXPECT_EQ(preview().count(u"zip line"_s), 13);
    EXPECT_EQ(preview().count(u"Zip Line"_s), 1 + 2); // the heading and the two objects
    EXPECT_EQ(preview().count(u"ZIP"_s), 0);
    EXPECT_TRUE(preview().contains(u"LEGALLY VALID CLAIM FOR THE zip line AND/OR INVENTION"_s));
    EXPECT_TRUE(preview().contains(u"  The zip line is capable of"_s));
    EXPECT_TRUE(preview().contains(u"  The zip line may be embodied"_s));
}

// Figures

TEST_F(HtmlComposerTest, a_figure_is_described_in_one_paragraph) {
    EXPECT_EQ(paragraph(u"FIGURE 1:"_s),
              u"FIGURE 1: Figure 1 is an upper perspective view of the present invention. "
              "The holder is open. "_s);
}

TEST_F(HtmlComposerTest, figures_are_numbered_and_parted_by_line_breaks) {
    setCount(fields, FieldGroup::Figures, 3);
    for (int i = 0; i < 3; ++i)
        fields.cboFigureType(i).setText(u"front view"_s);
    fields.txtFigureDetail(2).setText(u"third"_s);
    const QString page = preview();
    EXPECT_TRUE(page.contains(
        u"</p>\r\n  <br>\r\n  <p class=\"text\">FIGURE 2: Figure 2 is a front view of "
        "the present invention. </p>\r\n  <br>\r\n  <p class=\"text\">FIGURE 3: "
        "Figure 3 is a front view of the present invention. Third. </p>"_s));
    EXPECT_EQ(paragraphs(u"figure"_s), QStringList({u"FIG. 1"_s, u"FIG. 2"_s, u"FIG. 3"_s}));
    EXPECT_EQ(page.count(u"</p>\r\n  <br><br>\r\n  <p class=\"drawing\">"_s), 2);
}

TEST_F(HtmlComposerTest, without_figures_both_places_say_so_once) {
    setCount(fields, FieldGroup::Figures, 0);
    EXPECT_EQ(preview().count(NoFigures), 2);
    EXPECT_EQ(paragraph(NoFigures), NoFigures + u"  "_s);
    EXPECT_EQ(paragraphs(u"drawing"_s), QStringList(NoFigures + u" "_s));
    EXPECT_EQ(paragraphs(u"figure"_s), QStringList(u""_s));
    EXPECT_FALSE(preview().contains(u"<img"_s));
    EXPECT_FALSE(preview().contains(u"FIGURE 1"_s));
}

TEST_F(HtmlComposerTest, the_drawings_open_a_page_with_and_without_figures) {
    EXPECT_EQ(preview().count(PageBreak), 7);
    setCount(fields, FieldGroup::Figures, 0);
    EXPECT_EQ(preview().count(PageBreak), 7);
    EXPECT_TRUE(preview().contains(PageBreak + u"</div>\r\n  <p class=\"section\">DRAWINGS</p>"_s));
}

TEST_F(HtmlComposerTest, a_figure_is_drawn_at_its_size) {
    writeFile(path(u"a picture #1%20.png"_s));
    fields.txtAttachFig(0).setText(path(u"a picture #1%20.png"_s));
    fields.figureState(0) = {u"/nowhere/copy.png"_s, u"626, 810"_s};
    EXPECT_EQ(paragraphs(u"drawing"_s),
              QStringList(u" <img src=\"file:///"_s + path(u"a picture #1%20.png"_s) +
                          u"\" width =\"626\" height =\"810\"> "_s));
}

TEST_F(HtmlComposerTest, a_figure_of_unknown_size_has_two_empty_lengths) {
    EXPECT_TRUE(preview().contains(u" width =\"\" height =\"\"> </p>"_s));
}

TEST_F(HtmlComposerTest, the_working_copy_stands_in_for_a_picture_that_is_gone) {
    fields.figureState(0) = {u"C:\\Temp\\copy 1.png"_s, u"100, 50"_s};
    for (const QString& attached : {u"/nowhere/fig1.png"_s, u"C:\\fig1.png"_s, u""_s, u"  "_s}) {
        fields.txtAttachFig(0).setText(attached);
        EXPECT_EQ(paragraphs(u"drawing"_s).first(),
                  u" <img src=\"file:///C:\\Temp\\copy 1.png\" width =\"100\" height =\"50\"> "_s);
    }
}

TEST_F(HtmlComposerTest, a_picture_that_is_nowhere_gives_a_dead_path_and_no_failure) {
    EXPECT_EQ(paragraphs(u"drawing"_s).first(),
              u" <img src=\"file:///\" width =\"\" height =\"\"> "_s);
    EXPECT_FALSE(composer.failure().has_value());
}

// Elements

TEST_F(HtmlComposerTest, the_overview_names_the_elements_as_typed) {
    EXPECT_TRUE(paragraph(u"Turning now"_s)
                    .endsWith(u"an example embodiment comprising a base, a Clip and a pin."_s));
}

TEST_F(HtmlComposerTest, a_main_element_is_a_heading_and_three_paragraphs_with_lines_between) {
    const auto element = [](const QString& heading, const QString& name) {
        const QString text = u"  <p class=\"text\">%1</p>\r\n"_s;
        const QString blank = text.arg(u"&nbsp;"_s);
        return u"\r\n  <p class=\"lettered\">"_s + heading + u"</p>\r\n"_s +
               text.arg(name + u" described. "_s) + blank + text.arg(name + u" in detail. "_s) +
               blank + text.arg(name + u" varied. "_s) + u"  "_s;
    };
    const QString expected = element(u"B."_s + WideGap + u"Base Of Steel"_s, u"Base of steel"_s) +
                             u"<br>"_s + element(u"C."_s + WideGap + u"Clip"_s, u"Clip"_s) +
                             u"<br>"_s + element(u"D."_s + WideGap + u"Pin"_s, u"Pin"_s) +
                             u"\r\n\r\n  <p class=\"lettered\">E."_s;
    EXPECT_TRUE(preview().contains(expected));
}

TEST_F(HtmlComposerTest, the_letters_run_on_behind_the_main_elements) {
    EXPECT_EQ(paragraphs(u"lettered"_s).sliced(4),
              QStringList({u"E."_s + WideGap +
                               u"Connections of Main Elements and Sub-Elements of Invention"_s,
                           u"F."_s + WideGap + u"Alternative Embodiments of Invention"_s,
                           u"G."_s + WideGap + u"Operation of Preferred Embodiment"_s}));
}

TEST_F(HtmlComposerTest, every_number_of_main_elements_has_its_letters) {
    for (int n = 1; n <= 15; ++n) {
        setCount(fields, FieldGroup::MainElements, n);
        QString letters;
        for (const QString& heading : paragraphs(u"lettered"_s))
            letters += heading.first(2);
        QString expected;
        for (int i = 0; i < n + 4; ++i)
            expected += QChar(u'A' + i) + u"."_s;
        EXPECT_EQ(letters, expected);
    }
}

TEST_F(HtmlComposerTest, connections_alternatives_and_operation_are_finished) {
    fields.txtDesConnections.setText(u" the clip\r\nthe base. "_s);
    const QString page = preview();
    EXPECT_TRUE(
        page.contains(u"<p class=\"text\">The clip. <br>"_s + Indent + u"The base. </p>"_s));
    EXPECT_TRUE(page.contains(u"<p class=\"text\">A screw instead. </p>"_s));
    EXPECT_TRUE(page.contains(u"<p class=\"text\">Press the clip. </p>"_s));
}

TEST_F(HtmlComposerTest, alternatives_that_are_exactly_empty_are_said_not_to_be) {
    fields.txtDesAlterative.setText(u""_s);
    EXPECT_TRUE(preview().contains(
        u"<p class=\"text\">There are no alternative variations at this time.</p>"_s));
}

TEST_F(HtmlComposerTest, alternatives_of_blanks_leave_an_empty_paragraph) {
    fields.txtDesAlterative.setText(u"  "_s);
    EXPECT_FALSE(preview().contains(u"There are no alternative"_s));
    EXPECT_TRUE(preview().contains(u"Alternative Embodiments of Invention</p>\r\n  "
                                   "<p class=\"text\"></p>"_s));
}

TEST_F(HtmlComposerTest, the_abstract_puts_title_purpose_and_elements_together) {
    EXPECT_EQ(paragraph(u"A widget"_s),
              u"A widget holder for holding One Widget. The widget holder generally includes a "
              "base, a Clip and a pin."_s);
}

TEST_F(HtmlComposerTest, the_index_has_ten_paragraphs_for_each_main_element) {
    const QStringList lines = paragraphs(u"element"_s);
    ASSERT_EQ(lines.size(), 30);
    EXPECT_EQ(lines[0], u"<b>10:   Base of Steel </b>"_s);
    EXPECT_EQ(lines[1], u""_s);
    EXPECT_EQ(lines[10], u"<b>20:   Clip </b>"_s);
    EXPECT_EQ(lines[11], u"21:   Spring "_s);
    EXPECT_EQ(lines[20], u"<b>30:   Pin </b>"_s);
}
