#include "draft/pages/RichText.h"

#include "draft/compose/HtmlComposition.h"
#include "draft/compose/IndexComposer.h"

using namespace quillford;

namespace {

class RichTextTest : public HtmlComposition {
protected:
    RichText draft() { return richTextOf(preview()); }
};

/// What stands behind each `<p ` up to the end of its tag.
QStringList paragraphTags(const QString& html) {
    static const QRegularExpression tag(u"<p\\b([^>]*)>"_s);
    QStringList tags;
    for (const QRegularExpressionMatch& match : tag.globalMatch(html))
        tags.append(match.captured(1));
    return tags;
}

} // namespace

TEST_F(RichTextTest, a_page_of_somebody_else_is_taken_as_it_is) {
    const QString page = u"<html><head><style>p { color:red }</style></head><p>Help<hr></html>"_s;
    const RichText text = richTextOf(page);
    EXPECT_EQ(text.html, page);
    EXPECT_EQ(text.styleSheet, u""_s);
    EXPECT_EQ(richTextOf(u""_s).html, u""_s);
}

TEST_F(RichTextTest, the_toolkit_s_style_stands_in_for_the_page_s_own) {
    EXPECT_FALSE(draft().html.contains(u"<style>"));
    EXPECT_TRUE(draft().styleSheet.contains(u"Times New Roman"));
}

TEST_F(RichTextTest, each_composed_page_has_its_style) {
    QString index;
    ASSERT_TRUE(IndexComposer(fields, folders, prompts).ExportToIndex(index));
    EXPECT_EQ(richTextOf(index).styleSheet, draft().styleSheet);
    const QString report = QString::fromUtf8(contentOf(u":/templates/ERRORREPORT.htm"_s));
    EXPECT_TRUE(richTextOf(report).styleSheet.contains(u"Arial"));
}

TEST_F(RichTextTest, every_class_of_the_template_has_a_rule_or_a_place) {
    const QString page = QString::fromUtf8(contentOf(u":/templates/HTMLTEMPLATE.htm"_s));
    static const QRegularExpression named(u"<p class=\"([^\"]+)\""_s);
    const RichText text = draft();
    for (const QRegularExpressionMatch& match : named.globalMatch(page)) {
        const QString name = match.captured(1);
        const QString centred = u"align=\"center\" class=\"%1\""_s.arg(name);
        EXPECT_TRUE(text.styleSheet.contains(u"p."_s + name) || text.html.contains(centred))
            << qPrintable(name);
    }
}

TEST_F(RichTextTest, every_paragraph_says_how_its_lines_stand) {
    for (const QString& tag : paragraphTags(draft().html))
        EXPECT_EQ(tag.count(u"align="), 1) << qPrintable(tag);
}

TEST_F(RichTextTest, a_paragraph_that_the_user_types_is_justified_too) {
    fields.txtOperation.setText(u"</p><p>typed</p><p align=right>typed"_s);
    const QString html = draft().html;
    EXPECT_TRUE(html.contains(u"<p align=\"justify\">typed")) << qPrintable(html);
    EXPECT_TRUE(html.contains(u"<p align=right>typed"));
}

TEST_F(RichTextTest, each_page_break_has_the_paragraph_behind_it_begin_a_page) {
    const QString html = draft().html;
    EXPECT_EQ(html.count(u"page-break-before:always\" align=\"center\" class=\"section\">"), 6);
    EXPECT_EQ(html.count(u"page-break-before:always\" align=\"center\" class=\"centred\">"), 1);
    EXPECT_EQ(html.count(u"page-break-before"), 7);
    EXPECT_FALSE(html.contains(u"new-page"));
}

TEST_F(RichTextTest, the_notice_becomes_a_table_of_one_cell) {
    const QString html = draft().html;
    EXPECT_EQ(html.count(u"<table"), 1);
    const qsizetype begin = html.indexOf(u"<td class=\"notice\">");
    EXPECT_LT(begin, html.indexOf(u"NOTICE TO APPLICANT"));
    EXPECT_LT(html.indexOf(u"Patent Applications ASAP"), html.indexOf(u"</td>"));
}

TEST_F(RichTextTest, each_object_becomes_a_paragraph) {
    const QString html = draft().html;
    EXPECT_EQ(html.count(u"class=\"objects\">Another object is"), 2) << qPrintable(html);
}

TEST_F(RichTextTest, a_figure_s_path_is_taken_as_it_stands) {
    const QString path = this->path(u"a #1 100%25 \"b\" \\ &amp; ü.png"_s);
    writeFile(path);
    fields.txtAttachFig(0).setText(path);
    fields.figureState(0).sizeText = u"120, 80"_s;
    const RichText text = draft();
    EXPECT_EQ(text.figures, QList{(PageFigure{path, QSize(120, 80)})});
    EXPECT_TRUE(text.html.contains(u"<img src=\"picture:0\" width=\"120\" height=\"80\"></p>"))
        << qPrintable(text.html);
}

TEST_F(RichTextTest, a_size_that_is_not_known_is_left_out) {
    EXPECT_TRUE(draft().html.contains(u"<img src=\"picture:0\"></p>"));
}

TEST_F(RichTextTest, every_figure_has_its_picture) {
    setCount(fields, FieldGroup::Figures, 12);
    QList<PageFigure> figures;
    for (int i = 0; i < 12; ++i) {
        figures.append({this->path(u"fig%1.png"_s.arg(i)), {}});
        writeFile(figures.last().path);
        fields.txtAttachFig(i).setText(figures.last().path);
    }
    const RichText text = draft();
    EXPECT_EQ(text.figures, figures);
    EXPECT_TRUE(text.html.contains(u"<img src=\"picture:11\"></p>"));
}

TEST_F(RichTextTest, a_typed_tag_that_is_no_figure_s_leaves_the_figures_alone) {
    for (const QString& typed : {u"<img src=\"file:///a.png"_s, u"<img src=\"file:///a.png\">"_s,
                                 u"<img src=\"file:///a.png\" width =\"9\" height =\"9\">"_s,
                                 u"<img src=\"file:///a.png\" width =\"100000\" height =\"9\">"_s,
                                 u"<img src=\"file:///a.png\" width =\"-1\" height =\"x\">"_s,
                                 u"<img src=\"file:///a.png\" width =\""_s}) {
        fields.txtPurpose.setText(typed);
        const RichText text = draft();
        EXPECT_EQ(text.figures.size(), 1) << qPrintable(typed);
        EXPECT_TRUE(text.html.contains(typed)) << qPrintable(typed);
        EXPECT_TRUE(text.html.contains(u"<img src=\"picture:0\">")) << qPrintable(typed);
    }
}

TEST_F(RichTextTest, a_sign_that_opens_no_tag_stays_text) {
    fields.txtPurpose.setText(u"1 < 2 <3 <b>bold</b> < <link href=x>end<"_s);
    const QString html = draft().html;
    EXPECT_TRUE(html.contains(u"1 &lt; 2 &lt;3 <b>bold</b> &lt; end&lt;.")) << qPrintable(html);
}

TEST_F(RichTextTest, blanks_at_the_end_of_a_paragraph_are_cut) {
    setCount(fields, FieldGroup::Figures, 0);
    EXPECT_TRUE(draft().html.contains(u"IN THIS PROVISIONAL APPLICATION.</p>"));
}

TEST_F(RichTextTest, a_picture_s_name_tells_its_index) {
    EXPECT_EQ(figureIndex(pictureName(12)), 12);
    EXPECT_EQ(figureIndex(u"picture:"_s), -1);
    EXPECT_EQ(figureIndex(u"picture:x"_s), -1);
    EXPECT_EQ(figureIndex(u"pictureX0"_s), -1);
}

TEST_F(RichTextTest, line_breaks_between_drawings_take_no_room_and_others_are_an_empty_line) {
    setCount(fields, FieldGroup::Figures, 2);
    const QString html = draft().html;
    EXPECT_FALSE(html.contains(u"<br><br>"));
    EXPECT_EQ(html.count(u"<p align=\"justify\">&nbsp;</p>"), 1 + 2 + 2)
        << "between figures, Main Elements and the groups of the index";
}

TEST_F(RichTextTest, an_empty_line_of_the_index_keeps_its_height) {
    EXPECT_EQ(draft().html.count(u"class=\"element\">&nbsp;</p>"), 3 * 9 - 1);
}

TEST_F(RichTextTest, a_page_that_is_cut_off_does_no_harm) {
    const QString page = preview();
    for (qsizetype length = 0; length < page.size(); length += 97)
        EXPECT_LE(richTextOf(page.first(length)).html.size(), page.size() + 4000);
}
