#include "persistence/project/JsonReader.h"

#include "base/Error.h"
#include "core/fields/FieldLists.h"
#include "support/ErrorOf.h"
#include "support/PrintQt.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <string>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

void read(const QByteArray& json, Project& project) {
    readProjectJson(json, u"/home/ann/easel"_s, project);
}

void expectRefused(const QByteArray& json, const QString& description) {
    const Error error = errorOf([&] {
        Project project;
        read(json, project);
    });
    EXPECT_EQ(error.description(), description) << json.toStdString();
}

/// The text of `txtPurpose` that is written so, quotes included, in JSON.
QString purposeOf(const QByteArray& value) {
    Project project;
    read("{\"txtPurpose\": " + value + "}", project);
    return project.fields.txtPurpose.text();
}

/// The path that is stored for the attached picture `path`, written as in JSON.
QString attachedPath(const QByteArray& path) {
    Project project;
    read("{\"txtAttachFig\": [\"" + path + "\"]}", project);
    return project.fields.txtAttachFig(0).text();
}

QByteArray listOf(int texts) {
    QByteArrayList list;
    for (int i = 0; i < texts; ++i)
        list.append("\"text " + QByteArray::number(i) + '"');
    return '[' + list.join(", ") + ']';
}

QByteArray nested(int depth) {
    return "{\"Pictures\": " + QByteArray(depth, '[') + QByteArray(depth, ']') + '}';
}

std::string nameOf(const FieldRow& row) {
    return row.name.toUtf8().toStdString();
}

const FieldRow& countRow(const FieldRow& row) {
    return fieldRow(groupLimits(row.group).count);
}

} // namespace

TEST(JsonReader, of_an_empty_object_makes_a_new_project) {
    const Project expected;
    Project project;
    read("{}", project);
    for (const FieldRow& row : fieldTable()) {
        ASSERT_EQ(project.fields.count(row.id), expected.fields.count(row.id)) << nameOf(row);
        for (int i = 0; i < project.fields.count(row.id); ++i)
            EXPECT_EQ(project.fields.at(row.id, i).text(), expected.fields.at(row.id, i).text())
                << nameOf(row);
    }
    EXPECT_FALSE(project.state.verifyPassed);
}

TEST(JsonReader, keeps_what_is_left_out_at_the_value_of_a_new_project) {
    Project project;
    read(R"({"txtFileNo": "QF-1"})", project);
    EXPECT_EQ(project.fields.txtFileNo.text(), u"QF-1"_s);
    EXPECT_EQ(project.fields.cboStateStep1.text(), u"AK"_s);
    EXPECT_EQ(project.fields.cboCountryStep1.text(), u"United States"_s);
    EXPECT_EQ(project.fields.cboInventorsNum.text(), u"1"_s);
    EXPECT_EQ(project.fields.cboStateStep2(7).text(), u"AK"_s);
    EXPECT_EQ(project.fields.cboCitizenshipStep2(7).text(), u"United States"_s);
    EXPECT_EQ(project.fields.cboObjectNum.text(), u"4"_s);
    EXPECT_EQ(project.fields.cboFiguresNum.text(), u"1"_s);
    EXPECT_EQ(project.fields.cboFigureType(0).text(), u"SELECT A VIEW"_s);
    EXPECT_EQ(project.fields.cboMainElementNum.text(), u"3"_s);
}

TEST(JsonReader, takes_a_string_for_every_field_that_stands_once) {
    for (const FieldRow& row : fieldTable()) {
        if (row.group != FieldGroup::Single || row.kind == FieldKind::Check)
            continue;
        const QString text =
            row.kind == FieldKind::List ? listRows(row.list).last() : u" \u00E9 "_s;
        Project project;
        read(u"{\"%1\": \"%2\"}"_s.arg(row.name, text).toUtf8(), project);
        EXPECT_EQ(project.fields.at(row.id).text(), text) << nameOf(row);
    }
}

TEST(JsonReader, takes_a_list_as_long_as_its_count_for_every_repeated_field) {
    for (const FieldRow& row : fieldTable()) {
        if (row.group == FieldGroup::Single)
            continue;
        const int most = groupLimits(row.group).most;
        Project project;
        read("{\"" + row.name.toUtf8() + "\": " + listOf(most) + ", \"" +
                 countRow(row).name.toUtf8() + "\": \"" + QByteArray::number(most) + "\"}",
             project);
        ASSERT_EQ(project.fields.count(row.id), most);
        EXPECT_TRUE(project.fields.at(row.id, most - 1).text().endsWith(u"text %1"_s.arg(most - 1)))
            << nameOf(row);
    }
}

TEST(JsonReader, fills_a_shorter_list_up_with_the_values_of_a_new_project) {
    for (const FieldRow& row : fieldTable()) {
        if (row.group == FieldGroup::Single)
            continue;
        Project project;
        read("{\"" + countRow(row).name.toUtf8() + "\": \"3\", \"" + row.name.toUtf8() +
                 "\": [\"/x\"]}",
             project);
        EXPECT_EQ(project.fields.at(row.id, 0).text(), u"/x"_s);
        EXPECT_EQ(project.fields.at(row.id, 1).text(), row.initial);
        EXPECT_EQ(project.fields.at(row.id, 2).text(), row.initial);
    }
}

TEST(JsonReader, refuses_a_list_longer_than_its_count_and_names_both_keys) {
    for (const FieldRow& row : fieldTable()) {
        if (row.group == FieldGroup::Single)
            continue;
        expectRefused(
            "{\"" + row.name.toUtf8() + "\": " + listOf(3) + ", \"" + countRow(row).name.toUtf8() +
                "\": \"2\"}",
            u"\"%1\" holds 3 texts, but \"%2\" is \"2\""_s.arg(row.name, countRow(row).name));
    }
}

TEST(JsonReader, measures_a_list_by_the_count_of_a_new_project_where_none_is_given) {
    expectRefused(R"({"txtObject": ["1", "2", "3", "4", "5"]})",
                  u"\"txtObject\" holds 5 texts, but \"cboObjectNum\" is \"4\""_s);
}

TEST(JsonReader, of_a_project_without_figures_takes_no_text_for_one) {
    Project project;
    read(R"({"cboFiguresNum": "0", "txtAttachFig": [], "cboFigureType": []})", project);
    EXPECT_EQ(project.fields.cboFiguresNum.text(), u"0"_s);
    EXPECT_EQ(project.fields.txtAttachFig(0).text(), QString());
    expectRefused(R"({"cboFiguresNum": "0", "txtFigureDetail": [""]})",
                  u"\"txtFigureDetail\" holds 1 texts, but \"cboFiguresNum\" is \"0\""_s);
}

TEST(JsonReader, makes_as_many_panels_as_a_count_says) {
    Project project;
    read(R"({"cboInventorsNum": "8", "cboObjectNum": "20", "cboFiguresNum": "50",
             "cboMainElementNum": "15"})",
         project);
    for (const FieldGroup group : RepeatingGroups)
        EXPECT_EQ(project.fields.panelCount(group), groupLimits(group).most);
    read(R"({"cboInventorsNum": "1", "cboObjectNum": "1", "cboFiguresNum": "1",
             "cboMainElementNum": "1"})",
         project);
    for (const FieldGroup group : RepeatingGroups)
        EXPECT_EQ(project.fields.panelCount(group), 1);
}

TEST(JsonReader, refuses_a_count_that_its_list_does_not_offer) {
    const auto refusal = [](const char* count) {
        return "{\"cboInventorsNum\": \"" + QByteArray(count) + "\"}";
    };
    for (const char* count :
         {"0", "9", "-1", "", " 2", "2 ", "02", "+2", "2.0", "two", "99999999999"})
        expectRefused(refusal(count),
                      u"\"cboInventorsNum\" must be one of \"1\" to \"8\", not \"%1\""_s.arg(
                          QString::fromLatin1(count)));
    expectRefused(R"({"cboObjectNum": "21"})",
                  u"\"cboObjectNum\" must be one of \"1\" to \"20\", not \"21\""_s);
    expectRefused(R"({"cboFiguresNum": "51"})",
                  u"\"cboFiguresNum\" must be one of \"0\" to \"50\", not \"51\""_s);
    expectRefused(R"({"cboMainElementNum": "0"})",
                  u"\"cboMainElementNum\" must be one of \"1\" to \"15\", not \"0\""_s);
}

TEST(JsonReader, refuses_every_other_type_for_a_field_that_stands_once) {
    for (const FieldRow& row : fieldTable())
        for (const char* value : {"1", "true", "null", "[]", "[\"1\"]", "{}"})
            if (row.group == FieldGroup::Single && row.kind != FieldKind::Check)
                expectRefused("{\"" + row.name.toUtf8() + "\": " + value + '}',
                              u"\"%1\" must be a string"_s.arg(row.name));
}

TEST(JsonReader, refuses_every_other_type_for_a_repeated_field) {
    for (const FieldRow& row : fieldTable())
        for (const char* value : {"1", "true", "null", "\"text\"", "{}", "[1]", "[null]", "[true]",
                                  "[[\"text\"]]", "[{}]"})
            if (row.group != FieldGroup::Single)
                expectRefused("{\"" + row.name.toUtf8() + "\": " + value + '}',
                              u"\"%1\" must be a list of strings"_s.arg(row.name));
}

TEST(JsonReader, takes_0_or_1_for_the_check_box_and_nothing_else) {
    const auto checked = [](const char* value) {
        Project project;
        read("{\"chkSameAsContact\": " + QByteArray(value) + '}', project);
        return project.fields.chkSameAsContact.text();
    };
    EXPECT_EQ(checked("0"), u"0"_s);
    EXPECT_EQ(checked("1"), u"1"_s);
    EXPECT_EQ(checked("-0"), u"0"_s);
    EXPECT_EQ(checked("1.0"), u"1"_s);
    for (const char* value :
         {"2", "-1", "0.5", "1e300", "\"1\"", "true", "false", "null", "[]", "{}"})
        expectRefused("{\"chkSameAsContact\": " + QByteArray(value) + '}',
                      u"\"chkSameAsContact\" must be 0 or 1"_s);
}

TEST(JsonReader, takes_true_or_false_for_the_verification_and_nothing_else) {
    Project project;
    read(R"({"verifyPassed": true})", project);
    EXPECT_TRUE(project.state.verifyPassed);
    read(R"({"verifyPassed": false})", project);
    EXPECT_FALSE(project.state.verifyPassed);
    for (const char* value : {"0", "1", "null", "\"true\"", "[]", "{}"})
        expectRefused("{\"verifyPassed\": " + QByteArray(value) + '}',
                      u"\"verifyPassed\" must be true or false"_s);
}

TEST(JsonReader, refuses_a_name_that_is_no_field) {
    for (const QString& name : {u"txtFileNO"_s, u"txtNameStep2(0)"_s, u"txtFileNo "_s, u""_s,
                                u"imgFigure"_s, u"section version"_s, u"\u00E9%1"_s})
        expectRefused(u"{\"%1\": \"\"}"_s.arg(name).toUtf8(),
                      u"\"%1\" is no field of a project"_s.replace(u"%1"_s, name));
}

TEST(JsonReader, passes_over_what_only_a_shown_project_has) {
    Project project;
    read(R"({"Section Version": "3.1", "txtFileNo": "1",
             "Pictures": [{"index": 0, "path": "a", "size": 1, "sha256": "b"}]})",
         project);
    read(R"({"Section Version": null, "Pictures": 7})", project);
    EXPECT_EQ(project.fields.txtFileNo.text(), u"1"_s);
}

TEST(JsonReader, puts_the_folder_before_a_relative_picture_path) {
    EXPECT_EQ(attachedPath("fig1.png"), u"/home/ann/easel/fig1.png"_s);
    EXPECT_EQ(attachedPath("figures/fig 1.png"), u"/home/ann/easel/figures/fig 1.png"_s);
    EXPECT_EQ(attachedPath("./fig1.png"), u"/home/ann/easel/fig1.png"_s);
    EXPECT_EQ(attachedPath("../fig1.png"), u"/home/ann/fig1.png"_s);
    EXPECT_EQ(attachedPath("~/fig1.png"), u"/home/ann/easel/~/fig1.png"_s);
    EXPECT_EQ(attachedPath("%1#?\xC3\xA9.png"), u"/home/ann/easel/%1#?\u00E9.png"_s);
}

TEST(JsonReader, takes_blanks_and_colons_as_part_of_a_picture_s_name) {
    EXPECT_EQ(attachedPath(" fig1.png "), u"/home/ann/easel/ fig1.png "_s);
    EXPECT_EQ(attachedPath(":/fig1.png"), u"/home/ann/easel/:/fig1.png"_s);
    EXPECT_EQ(attachedPath("a:fig1.png"), u"/home/ann/easel/a:fig1.png"_s);
    EXPECT_EQ(attachedPath("\xC3\xA9:/fig1.png"), u"/home/ann/easel/\u00E9:/fig1.png"_s);
}

TEST(JsonReader, keeps_an_absolute_picture_path_as_it_stands) {
    EXPECT_EQ(attachedPath("/home/ed/fig1.png"), u"/home/ed/fig1.png"_s);
    EXPECT_EQ(attachedPath("/home//ed/../fig1.png "), u"/home//ed/../fig1.png "_s);
    EXPECT_EQ(attachedPath("  /home/ed/fig1.png"), u"  /home/ed/fig1.png"_s);
}

TEST(JsonReader, takes_a_windows_path_as_absolute) {
    EXPECT_EQ(attachedPath(R"(C:\\My Drawings\\fig1.bmp)"), u"C:\\My Drawings\\fig1.bmp"_s);
    EXPECT_EQ(attachedPath("z:/fig1.bmp"), u"z:/fig1.bmp"_s);
    EXPECT_EQ(attachedPath(R"(\\\\server\\share\\fig1.bmp)"), u"\\\\server\\share\\fig1.bmp"_s);
}

TEST(JsonReader, leaves_an_empty_or_blank_picture_path_alone) {
    EXPECT_EQ(attachedPath(""), u""_s);
    EXPECT_EQ(attachedPath("   "), u"   "_s);
}

TEST(JsonReader, starts_relative_paths_at_the_root_as_well) {
    Project project;
    readProjectJson(R"({"txtAttachFig": ["fig1.png"]})", u"/"_s, project);
    EXPECT_EQ(project.fields.txtAttachFig(0).text(), u"/fig1.png"_s);
}

TEST(JsonReader, keeps_a_text_over_its_fields_limit) {
    const QString title(1000, u'x');
    Project project;
    read(u"{\"txtInventionTitle\": \"%1\", \"txtMIStep2\": [\"%1\"]}"_s.arg(title).toUtf8(),
         project);
    EXPECT_EQ(project.fields.txtInventionTitle.text(), title);
    EXPECT_EQ(project.fields.txtMIStep2(0).text(), title);
}

TEST(JsonReader, takes_a_combo_text_that_its_list_does_not_offer) {
    Project project;
    read(R"({"cboCountryStep1": "Ruritania", "cboCitizenshipStep2": ["India"],
             "cboFigureType": ["a view of my own"]})",
         project);
    EXPECT_EQ(project.fields.cboCountryStep1.text(), u"Ruritania"_s);
    EXPECT_EQ(project.fields.cboCitizenshipStep2(0).text(), u"India"_s);
    EXPECT_EQ(project.fields.cboFigureType(0).text(), u"a view of my own"_s);
}

TEST(JsonReader, keeps_line_ends_tabs_and_blanks_as_they_are) {
    EXPECT_EQ(purposeOf(R"("  a\r\n\tb\n\nc\r ")"), u"  a\r\n\tb\n\nc\r "_s);
}

TEST(JsonReader, keeps_control_characters_and_the_character_0) {
    EXPECT_EQ(purposeOf(R"("\u0000\u0001\u001f\u007f\u0085\b\f")"),
              QString(u"\0\u0001\u001f\u007f\u0085\b\f"_s));
    EXPECT_EQ(purposeOf(R"("a\u0000b")").size(), 3);
}

TEST(JsonReader, keeps_surrogate_pairs_however_they_are_written) {
    const QString clef = u"\U0001D11E"_s;
    EXPECT_EQ(purposeOf(R"("\ud834\udd1e")"), clef);
    EXPECT_EQ(purposeOf("\"\xF0\x9D\x84\x9E\""), clef);
}

TEST(JsonReader, keeps_half_a_surrogate_pair) {
    for (const char16_t unit : {u'\xD800', u'\xDBFF', u'\xDC00', u'\xDFFF'}) {
        const QString text = u'a' + QString(QChar(unit)) + u'b';
        EXPECT_EQ(purposeOf(u"\"a\\u%1b\""_s.arg(unit, 4, 16).toLatin1()), text);
    }
    EXPECT_EQ(purposeOf(R"("\udd1e\ud834")"), QString(QChar(0xDD1E)) + QChar(0xD834));
}

TEST(JsonReader, keeps_the_last_characters_of_the_plane) {
    EXPECT_EQ(purposeOf("\"\xEF\xBF\xBE\xEF\xBF\xBF\xEF\xBB\xBF\""),
              QString(QChar(0xFFFE)) + QChar(0xFFFF) + QChar(0xFEFF));
}

TEST(JsonReader, keeps_a_text_of_a_megabyte) {
    const QString text = u"The easel folds. \u00E9\r\n"_s.repeated(55000);
    ASSERT_GT(text.toUtf8().size(), 1000 * 1000);
    QString escaped = text;
    escaped.replace(u"\r\n"_s, u"\\r\\n"_s);
    EXPECT_TRUE(purposeOf('"' + escaped.toUtf8() + '"') == text);
}

TEST(JsonReader, passes_over_a_byte_order_mark) {
    Project project;
    read("\xEF\xBB\xBF{\"txtFileNo\": \"1\"}", project);
    EXPECT_EQ(project.fields.txtFileNo.text(), u"1"_s);
}

TEST(JsonReader, keeps_a_byte_order_mark_that_stands_in_a_text) {
    EXPECT_EQ(purposeOf("\"\xEF\xBB\xBFx\xEF\xBB\xBF\""), u"\uFEFFx\uFEFF"_s);
    EXPECT_EQ(purposeOf(R"("\ufeffx")"), u"\uFEFFx"_s);
}

TEST(JsonReader, takes_the_last_value_of_a_key_that_stands_twice) {
    Project project;
    read(R"({"txtFileNo": "1", "txtFileNo": "2"})", project);
    EXPECT_EQ(project.fields.txtFileNo.text(), u"2"_s);
}

TEST(JsonReader, refuses_a_text_that_is_no_json_and_tells_the_byte) {
    const auto offsetOf = [](const QByteArray& json) {
        const Error error = errorOf([&] {
            Project project;
            read(json, project);
        });
        EXPECT_TRUE(error.description().startsWith(u"it is no JSON: "))
            << json.toStdString() << qPrintable(error.description());
        EXPECT_TRUE(error.description().endsWith(u" at byte %1"_s.arg(error.offset())));
        return error.offset();
    };
    EXPECT_EQ(offsetOf(R"({"txtFileNo" "1"})"), 14); // counted from 1
    for (const char* json :
         {"", " ", "{", "{\"txtFileNo\": \"1\"", "{\"txtFileNo\": \"1\"} x", "{'txtFileNo': '1'}",
          "{\"txtFileNo\": \"1\",}", "{txtFileNo: 1}", "{\"txtFileNo\": \"\\u12\"}",
          "{\"txtFileNo\": \"\xFF\"}", "nul", "\xFF\xFE{\0}\0", "{\"txtFileNo\": // note\n \"1\"}"})
        EXPECT_GE(offsetOf(json), 0) << json;
}

TEST(JsonReader, refuses_json_that_is_no_object) {
    for (const char* json : {"[]", "[{}]"})
        expectRefused(json, u"it holds no JSON object"_s);
    for (const char* json : {"1", "\"text\"", "null", "true"})
        EXPECT_FALSE(errorOf([&] {
                         Project project;
                         read(json, project);
                     })
                         .description()
                         .isEmpty());
}

TEST(JsonReader, bounds_the_depth_that_it_follows) {
    Project project;
    read(nested(500), project);
    EXPECT_TRUE(errorOf([&] { read(nested(1000000), project); })
                    .description()
                    .startsWith(u"it is no JSON: too deeply nested document"));
}

TEST(JsonReader, marks_no_field_as_changed) {
    Project project;
    read(R"({"txtFileNo": "1", "cboInventorsNum": "8", "cboMainElementNum": "1",
             "cboObjectNum": "1", "txtObject": ["a"], "chkSameAsContact": 1})",
         project);
    for (const FieldRow& row : fieldTable())
        for (int i = 0; i < project.fields.count(row.id); ++i)
            EXPECT_FALSE(project.fields.at(row.id, i).isChanged()) << nameOf(row);
}

TEST(JsonReader, names_no_source_so_that_the_caller_can_name_the_file) {
    const Error error = errorOf([] {
        Project project;
        read(R"({"x": 1})", project);
    });
    EXPECT_EQ(error.source(), QString());
}
