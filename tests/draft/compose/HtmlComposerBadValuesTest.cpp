#include "draft/compose/HtmlComposition.h"
#include "support/FullDisk.h"

#include <ctime>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class HtmlComposerBadValuesTest : public HtmlComposition {};

/// The processor's time since the object was made: a busy machine does not count.
class Work {
public:
    [[nodiscard]] double seconds() const {
        return static_cast<double>(std::clock() - start_) / CLOCKS_PER_SEC;
    }

private:
    std::clock_t start_ = std::clock();
};

// In the order of the table of items. DIN, DO, DFD, DME, DF and DI are the blocks' places.
constexpr const char16_t* ItemsInOrder[] = {u"DocumentTitle",
                                            u"BODY",
                                            u"Title-FileNo1",
                                            u"I/WE",
                                            u"2-AND",
                                            u"2-INVENTOR",
                                            u"2-COUNTRY",
                                            u"DIN",
                                            u"1-INVENTION TITLE",
                                            u"1-INVENTION TITLE-U",
                                            u"1-GENERIC-PF",
                                            u"a/an",
                                            u"3-PURPOSE",
                                            u"a-an",
                                            u"1-GENERIC-SG",
                                            u"5-GENERAL",
                                            u"a/an-pur",
                                            u"1-INVENTION TITLE-pur",
                                            u"3-PURPOSE-pur",
                                            u"object",
                                            u"DO",
                                            u"FIGURE I:",
                                            u"Figure J is a FIGURE-TYPE of the present invention.",
                                            u"4-FIGURE DESCRIPTION",
                                            u"DFD",
                                            u"5-GENERAL-DE",
                                            u"B-MAIN ELEMENT",
                                            u"5-MAIN ELEMENT",
                                            u"5-MAIN DESCRIPTION",
                                            u"7-DETAILED",
                                            u"7-VARIATIONS",
                                            u"DME",
                                            u"C-MAIN ELEMENT",
                                            u"7-INTERCONNECTIONS",
                                            u"D-MAIN ELEMENT",
                                            u"7-ALTERNATIVE EMBODIMENTS",
                                            u"E-MAIN ELEMENT",
                                            u"9-OPERATION",
                                            u"1-INVENTION TITLE_U",
                                            u"A/An",
                                            u"IMAGE OF DRAWING ZERO",
                                            u"IMAGE OF DRAWING",
                                            u"FIG. N",
                                            u"DF",
                                            u"Element-1",
                                            u"Element-2",
                                            u"Element-3",
                                            u"Element-4",
                                            u"Element-5",
                                            u"Element-6",
                                            u"Element-7",
                                            u"Element-8",
                                            u"Element-9",
                                            u"Element-10",
                                            u"DI"};

} // namespace

// Fields that hold marks

TEST_F(HtmlComposerBadValuesTest,
       a_mark_that_was_typed_is_replaced_exactly_when_its_item_came_later) {
    struct Place {
        Field& field;
        QString item;
    };

    Place places[] = {{fields.txtFileNo, u"Title-FileNo1"_s},
                      {fields.txtPurpose, u"3-PURPOSE-pur"_s},
                      {fields.txtMainElement, u"5-GENERAL-DE"_s}};
    for (const Place& place : places) {
        const QString before = place.field.text();
        bool isLater = false;
        for (const QStringView item : ItemsInOrder) {
            const QString mark = u'[' + item.toString() + u']';
            place.field.setText(u"@"_s + mark + u"@."_s);
            const QString page = preview();
            EXPECT_EQ(!page.contains(u"@"_s + mark + u"@"_s), isLater)
                << qPrintable(mark) << " in " << qPrintable(place.item);
            isLater = isLater || item == place.item;
        }
        place.field.setText(before);
    }
}

TEST_F(HtmlComposerBadValuesTest, a_mark_of_no_item_stays_as_typed) {
    fields.txtPurpose.setText(u"a [1-invention title] [HTMLTemplate] [out] [] [x]"_s);
    EXPECT_EQ(paragraph(u"One object"_s),
              u"One object is to provide a widget holder for a [1-invention title] [HTMLTemplate] "
              "[out] [] [x]."_s);
}

TEST_F(HtmlComposerBadValuesTest, a_mark_in_an_object_is_replaced_while_the_block_is_rendered) {
    fields.txtObject(0).setText(u"is [3-PURPOSE]"_s);
    fields.txtObject(1).setText(u"is [9-OPERATION]"_s);
    EXPECT_TRUE(paragraphs(u"objects"_s).first().contains(u"that is [3-PURPOSE].<br>"_s));
    EXPECT_TRUE(paragraphs(u"objects"_s).first().endsWith(u"that is Press the clip. ."_s));
}

TEST_F(HtmlComposerBadValuesTest, signs_of_blocks_patterns_and_markup_come_through_as_typed) {
    for (const QString& text :
         {u"&lt;!--BEGIN Disclosing Figure--&gt;x&lt;!--END Disclosing Figure--&gt;"_s,
          u"<!--BEGIN Disclosing Index-->"_s, u"&amp; & && <b> </body></html>"_s,
          u"([\\s\\S.]*) $1 \\1 $& ^$ (?i) {2}"_s, u"%1 %2 %n %%"_s, u"[[a/an]] ][ [ ] ]]"_s,
          u"\U0001F58B\u0301"_s, u"\ttab\u00A0hard blank"_s, QString(QChar(0xD83D)) + u"lone"_s}) {
        fields.txtPurpose.setText(text);
        EXPECT_TRUE(preview().contains(u"widget holder for "_s + text + u".</p>"_s))
            << qPrintable(text);
        (void)exported();
    }
}

TEST_F(HtmlComposerBadValuesTest, a_lone_surrogate_becomes_a_question_mark_in_the_file) {
    fields.txtPurpose.setText(u"<"_s + QChar(0xD83D) + u"> \U0001F58B"_s);
    EXPECT_TRUE(exported().contains("for <?> \xF0\x9F\x96\x8B.</p>"));
}

// Large fields

// The bounds are far above what the work takes; a composition whose time grows with the square of
// the length would need hours.
TEST_F(HtmlComposerBadValuesTest,
       a_megabyte_of_anything_is_composed_in_time_that_grows_with_its_length) {
    constexpr int Small = 250'000;
    constexpr double MostSeconds = 30;
    for (const QString& piece : {u"x"_s,
                                 u". "_s,
                                 u"."_s,
                                 u"["_s,
                                 u"]"_s,
                                 u"[]"_s,
                                 u"[a/an]"_s,
                                 u"[9-OPERATION "_s,
                                 u"[unknown]"_s,
                                 u"\r\n"_s,
                                 u"a\r\n"_s,
                                 u"a. "_s,
                                 u"<"_s,
                                 u"&"_s,
                                 u"<b>&nbsp;"_s,
                                 u"&lt;!--BEGIN Disclosing Figure--&gt;"_s,
                                 u".*+?()|[]{}^$\\"_s,
                                 u"\U0001F58B"_s,
                                 QString(QChar(0xDC00)),
                                 lockedBody()}) {
        for (const int length : {Small, 4 * Small}) {
            fillLongFields(piece.repeated(length / piece.size()));
            const Work work;
            EXPECT_GT(preview().size(), length / piece.size());
            EXPECT_LT(work.seconds(), MostSeconds)
                << length << " characters of " << qPrintable(piece);
        }
    }
}

TEST_F(HtmlComposerBadValuesTest, the_largest_project_with_long_texts_is_composed) {
    constexpr int Length = 100'000;
    for (const FieldGroup group : RepeatingGroups)
        setCount(fields, group, groupLimits(group).most);
    for (const FieldRow& row : fieldTable())
        if (row.list == FieldListId::None && row.kind != FieldKind::Check)
            for (int i = 0; i < fields.count(row.id); ++i)
                fields.at(row.id, i).setText(u"word [x] "_s.repeated(Length / 9));
    const Work work;
    EXPECT_GT(preview().size(), 200 * Length);
    EXPECT_LT(work.seconds(), 30);
}

// Failures

TEST_F(HtmlComposerBadValuesTest, three_short_fields_that_ask_for_gigabytes_end_the_composition) {
    fields.txtPurpose.setText(u"[5-GENERAL]"_s.repeated(1'000));
    fields.txtMainElement.setText(u"[9-OPERATION]"_s.repeated(1'000));
    fields.txtOperation.setText(u"press the clip "_s.repeated(1'000));
    writeFile(path(u"draft.htm"_s), "old");
    QString html;
    EXPECT_FALSE(composer.ExportToHTML(path(u"draft.htm"_s), html));
    ASSERT_TRUE(composer.failure().has_value());
    EXPECT_EQ(composer.failure()->number(), 14);
    EXPECT_EQ(contentOf(path(u"draft.htm"_s)), QByteArray("old"));
    EXPECT_TRUE(prompts.boxes.empty());
}

TEST_F(HtmlComposerBadValuesTest, a_page_that_cannot_be_written_is_a_failure_that_names_it) {
    QString html;
    EXPECT_FALSE(composer.ExportToHTML(path(u"missing/draft.htm"_s), html));
    ASSERT_TRUE(composer.failure().has_value());
    EXPECT_EQ(composer.failure()->source(), path(u"missing/draft.htm"_s));
    EXPECT_TRUE(prompts.boxes.empty());
}

TEST_F(HtmlComposerBadValuesTest, a_full_disk_leaves_the_old_page) {
    writeFile(path(u"draft.htm"_s), "old");
    fields.txtPurpose.setText(QString(100'000, u'x'));
    QString html;
    {
        const FullDisk disk(50'000); // room for the template, not for the page
        EXPECT_FALSE(composer.ExportToHTML(path(u"draft.htm"_s), html));
    }
    EXPECT_EQ(contentOf(path(u"draft.htm"_s)), QByteArray("old"));
    EXPECT_EQ(composer.failure()->source(), path(u"draft.htm"_s));
}

TEST_F(HtmlComposerBadValuesTest, a_template_that_cannot_be_written_is_a_failure_without_a_box) {
    folders.temporary = u"/nowhere"_s;
    QString html = u" "_s;
    EXPECT_FALSE(composer.ExportToHTML(u"temp.html"_s, html));
    EXPECT_EQ(html, u" "_s);
    EXPECT_TRUE(composer.failure()->source().startsWith(u"/nowhere/Temp"_s));
    EXPECT_TRUE(prompts.boxes.empty());
}

TEST_F(HtmlComposerBadValuesTest, a_main_element_without_a_description_is_a_failure) {
    fields.setPanelCount(FieldGroup::Descriptions, 2);
    QString html = u" "_s;
    EXPECT_FALSE(composer.ExportToHTML(u"temp.html"_s, html));
    EXPECT_EQ(failureText(), "Main Element 3 has no description");
}

TEST_F(HtmlComposerBadValuesTest, a_success_forgets_the_failure_before_it) {
    QString html;
    EXPECT_FALSE(composer.ExportToHTML(path(u"missing/draft.htm"_s), html));
    (void)preview();
    EXPECT_FALSE(composer.failure().has_value());
}
