#include "verification/engine/EnterBoxText.h"

#include "support/PrintQt.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

QString boxText(const Field& field) {
    int count = 0;
    return getEnterBoxString(field, count);
}

QString objectsText(const QStringList& texts, int& count) {
    ProjectFields fields;
    fields.setPanelCount(FieldGroup::Objects, static_cast<int>(texts.size()));
    for (int i = 0; i < texts.size(); ++i)
        fields.txtObject(i).setText(texts.at(i));
    return getEnterBoxString(fields.txtObject, count);
}

QString corpusOf(const ProjectFields& fields) {
    int count = 0;
    return getAllEnterBoxWord(fields, count);
}

/// One panel in each group, so that every field stands once.
void keepOnePanel(ProjectFields& fields) {
    for (const FieldGroup group : RepeatingGroups)
        fields.setPanelCount(group, 1);
}

} // namespace

TEST(moveVbctrlf, a_line_end_becomes_one_blank) {
    EXPECT_EQ(moveVbctrlf(u"hinge\r\npin"), u"hinge pin"_s);
}

TEST(moveVbctrlf, any_number_of_line_ends_in_a_row_becomes_one_blank) {
    EXPECT_EQ(moveVbctrlf(u"a\r\n\r\nb"), u"a b"_s);
    EXPECT_EQ(moveVbctrlf(u"a\r\n\r\n\r\nb"), u"a b"_s);
    EXPECT_EQ(moveVbctrlf(u"a\r\n\r\n\r\n\r\n\r\nb\r\nc"), u"a b c"_s);
}

TEST(moveVbctrlf, blanks_beside_a_line_end_stay) {
    EXPECT_EQ(moveVbctrlf(u"a \r\n b"), u"a   b"_s);
    EXPECT_EQ(moveVbctrlf(u"a\r\n \r\nb"), u"a   b"_s);
}

TEST(moveVbctrlf, only_blanks_at_the_ends_are_taken_off_first) {
    EXPECT_EQ(moveVbctrlf(u"  a b  "), u"a b"_s);
    EXPECT_EQ(moveVbctrlf(u"\r\na\r\n"), u" a "_s);
    EXPECT_EQ(moveVbctrlf(u"\ta"), u"\ta"_s);
}

TEST(moveVbctrlf, half_a_line_end_stays) {
    EXPECT_EQ(moveVbctrlf(u"a\nb\rc\r\r\n\nd"), u"a\nb\rc\r \nd"_s);
}

TEST(moveVbctrlf, an_empty_text_stays_empty) {
    EXPECT_EQ(moveVbctrlf(u""), u""_s);
    EXPECT_EQ(moveVbctrlf(u"   "), u""_s);
}

TEST(getEnterBoxString, gives_a_field_in_one_line_without_blanks_at_its_ends) {
    ProjectFields fields;
    fields.txtOperation.setText(u"  The hinge\r\npin turns.\r\n"_s);
    EXPECT_EQ(boxText(fields.txtOperation), u"The hinge pin turns."_s);
}

TEST(getEnterBoxString, counts_a_field_only_when_it_is_filled) {
    ProjectFields fields;
    int count = 5;
    EXPECT_EQ(getEnterBoxString(fields.txtOperation, count), u""_s);
    fields.txtOperation.setText(u"   "_s);
    EXPECT_EQ(getEnterBoxString(fields.txtOperation, count), u""_s);
    EXPECT_EQ(count, 5);
    fields.txtOperation.setText(u"It turns."_s);
    EXPECT_EQ(getEnterBoxString(fields.txtOperation, count), u"It turns."_s);
    EXPECT_EQ(count, 6);
}

TEST(getEnterBoxString, joins_the_members_of_an_array_by_blanks) {
    int count = 0;
    EXPECT_EQ(objectsText({u" folds\r\nflat "_s, u"is light"_s, u"stands"_s}, count),
              u"folds flat is light stands"_s);
}

TEST(getEnterBoxString, counts_every_member_of_an_array_filled_or_not) {
    int count = 0;
    static_cast<void>(objectsText({u""_s, u"is light"_s, u"   "_s, u""_s}, count));
    EXPECT_EQ(count, 4);
}

TEST(getEnterBoxString, an_empty_member_adds_its_blank_once_there_is_text) {
    int count = 0;
    EXPECT_EQ(objectsText({u""_s, u"a"_s, u""_s, u"b"_s, u""_s}, count), u"a  b"_s);
}

TEST(getAllEnterBoxWord, joins_the_fields_in_their_order) {
    ProjectFields fields;
    keepOnePanel(fields);
    fields.txtOperation.setText(u"13"_s);
    fields.txtDesAlterative.setText(u"12"_s);
    fields.txtDesConnections.setText(u"11"_s);
    fields.txtMainElementVariations(0).setText(u"10"_s);
    fields.txtMainElementNameDetail(0).setText(u"9"_s);
    fields.txtElementDes(0).setText(u"8"_s);
    fields.txtMainElement.setText(u"7"_s);
    fields.txtFigureDetail(0).setText(u"6"_s);
    fields.txtObject(0).setText(u"5"_s);
    fields.txtPurpose.setText(u"4"_s);
    fields.txtTechTitle.setText(u"3"_s);
    fields.txtInventionTitle.setText(u"2"_s);
    fields.txtFileNo.setText(u"1"_s);
    EXPECT_EQ(corpusOf(fields), u"1 2 3 4 5 6 7 8 9 10 11 12 13"_s);
}

TEST(getAllEnterBoxWord, an_empty_field_adds_just_its_blank) {
    EXPECT_EQ(corpusOf(ProjectFields()), QString(12, u' '));
}

TEST(getAllEnterBoxWord, nothing_else_goes_in) {
    const auto goesIn = [](const FieldRow& row) {
        switch (row.id) {
        case FieldId::txtFileNo:
        case FieldId::txtInventionTitle:
        case FieldId::txtTechTitle:
        case FieldId::txtPurpose:
        case FieldId::txtObject:
        case FieldId::txtFigureDetail:
        case FieldId::txtMainElement:
        case FieldId::txtElementDes:
        case FieldId::txtMainElementNameDetail:
        case FieldId::txtMainElementVariations:
        case FieldId::txtDesConnections:
        case FieldId::txtDesAlterative:
        case FieldId::txtOperation:
            return true;
        default:
            return false;
        }
    };
    ProjectFields fields;
    for (const FieldRow& row : fieldTable())
        if (!goesIn(row))
            for (int i = 0; i < fields.count(row.id); ++i)
                fields.at(row.id, i).setText(u"strange"_s);
    EXPECT_EQ(corpusOf(fields), QString(12, u' '));
}

TEST(getAllEnterBoxWord, the_count_of_fields_grows_from_run_to_run) {
    ProjectFields fields;
    keepOnePanel(fields);
    fields.txtFileNo.setText(u"QF"_s);
    int count = 0;
    static_cast<void>(getAllEnterBoxWord(fields, count));
    EXPECT_EQ(count, 6) << "one filled field and five members of arrays";
    static_cast<void>(getAllEnterBoxWord(fields, count));
    EXPECT_EQ(count, 12);
}

TEST(getAllEnterBoxWord, groups_of_unequal_size_are_each_read_to_their_own_end) {
    ProjectFields fields;
    fields.setPanelCount(FieldGroup::MainElements, 4);
    fields.setPanelCount(FieldGroup::SubElements, 15);
    fields.setPanelCount(FieldGroup::Descriptions, 2);
    fields.txtElementDes(3).setText(u"fourth"_s);
    fields.txtMainElementNameDetail(1).setText(u"second"_s);
    EXPECT_EQ(corpusOf(fields).split(u' ', Qt::SkipEmptyParts),
              QStringList({u"fourth"_s, u"second"_s}));
}
