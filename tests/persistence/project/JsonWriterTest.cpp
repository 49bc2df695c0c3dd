#include "persistence/project/JsonWriter.h"

#include "support/PrintQt.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

QJsonObject written(const Project& project) {
    QJsonParseError failure;
    const QJsonDocument document = QJsonDocument::fromJson(writeProjectJson(project), &failure);
    EXPECT_EQ(failure.error, QJsonParseError::NoError) << qPrintable(failure.errorString());
    return document.object();
}

/// The line in which the project's purpose is written.
QByteArray purposeLine(const QString& purpose) {
    Project project;
    project.fields.txtPurpose.setText(purpose);
    for (const QByteArray& line : writeProjectJson(project).split('\n'))
        if (line.startsWith("  \"txtPurpose\""))
            return line;
    return {};
}

} // namespace

TEST(JsonWriter, writes_every_field_in_the_order_of_the_table_and_the_verification_last) {
    QByteArrayList expected;
    for (const FieldRow& row : fieldTable())
        expected.append(row.name.toUtf8());
    expected.append("verifyPassed");

    QByteArrayList keys;
    for (const QByteArray& line : writeProjectJson(Project()).split('\n'))
        if (line.startsWith("  \""))
            keys.append(line.mid(3, line.indexOf('"', 3) - 3));
    EXPECT_EQ(keys, expected);
}

TEST(JsonWriter, ends_in_one_line_end_and_uses_line_feeds) {
    const QByteArray json = writeProjectJson(Project());
    EXPECT_TRUE(json.startsWith("{\n  \"txtFileNo\": \"\",\n"));
    EXPECT_TRUE(json.endsWith("\n  \"verifyPassed\": false\n}\n"));
    EXPECT_FALSE(json.contains('\r'));
}

TEST(JsonWriter, gives_a_repeated_field_as_many_texts_as_its_count_says) {
    Project project;
    project.fields.cboInventorsNum.setText(u"2"_s);
    project.fields.setPanelCount(FieldGroup::Inventors, 2);
    const QJsonObject json = written(project);
    EXPECT_EQ(json[u"txtNameStep2"].toArray().size(), 2);
    EXPECT_EQ(json[u"txtObject"].toArray().size(), 4);
    EXPECT_EQ(json[u"txtAttachFig"].toArray().size(), 1);
    EXPECT_EQ(json[u"txtElementSub9"].toArray().size(), 3);
}

TEST(JsonWriter, gives_no_figure_an_empty_list_though_one_panel_stands) {
    Project project;
    project.fields.cboFiguresNum.setText(u"0"_s);
    project.fields.setPanelCount(FieldGroup::Figures, 0);
    ASSERT_EQ(project.fields.count(FieldId::txtAttachFig), 1);
    EXPECT_TRUE(writeProjectJson(project).contains("\"txtAttachFig\": [],\n"));
}

TEST(JsonWriter, writes_no_panel_that_a_count_promises_and_nobody_made) {
    Project project;
    project.fields.cboObjectNum.setText(u"20"_s);
    EXPECT_EQ(written(project)[u"txtObject"].toArray().size(), 4);
}

TEST(JsonWriter, writes_the_check_box_as_a_number_and_the_verification_as_a_truth) {
    Project project;
    project.fields.chkSameAsContact.setText(u"1"_s);
    project.state.verifyPassed = true;
    const QJsonObject json = written(project);
    EXPECT_EQ(json[u"chkSameAsContact"], QJsonValue(1));
    EXPECT_EQ(json[u"verifyPassed"], QJsonValue(true));
}

TEST(JsonWriter, escapes_what_json_forbids_in_a_text) {
    EXPECT_EQ(purposeLine(u"a\"b\\c\r\n\td"_s), R"(  "txtPurpose": "a\"b\\c\r\n\td",)");
    EXPECT_EQ(purposeLine(u"\u0001\u001f\u007f"_s), R"(  "txtPurpose": "\u0001\u001f\u007f",)");
    EXPECT_EQ(purposeLine(QString(QChar(0))), R"(  "txtPurpose": "\u0000",)");
}

TEST(JsonWriter, escapes_the_control_characters_that_json_allows_as_well) {
    EXPECT_EQ(purposeLine(u"\u0080\u009b1m\u009f\u00a0"_s),
              "  \"txtPurpose\": \"\\u0080\\u009b1m\\u009f\xC2\xA0\",");
}

TEST(JsonWriter, leaves_letters_of_every_script_as_they_are) {
    EXPECT_EQ(purposeLine(u"caf\u00E9 \u4E2D \U0001D11E / <b> %1"_s),
              "  \"txtPurpose\": \"caf\xC3\xA9 \xE4\xB8\xAD \xF0\x9D\x84\x9E / <b> %1\",");
}

TEST(JsonWriter, escapes_half_a_surrogate_pair_and_never_a_whole_one) {
    const QString high(QChar(0xD834));
    const QString low(QChar(0xDD1E));
    EXPECT_EQ(purposeLine(high), R"(  "txtPurpose": "\ud834",)");
    EXPECT_EQ(purposeLine(low), R"(  "txtPurpose": "\udd1e",)");
    EXPECT_EQ(purposeLine(low + high), R"(  "txtPurpose": "\udd1e\ud834",)");
    EXPECT_EQ(purposeLine(high + u'x' + low), R"(  "txtPurpose": "\ud834x\udd1e",)");
    EXPECT_EQ(purposeLine(high + high + low), "  \"txtPurpose\": \"\\ud834\xF0\x9D\x84\x9E\",");
}
