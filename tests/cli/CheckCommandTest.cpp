#include "cli/CliProgram.h"
#include "support/FakeFolders.h"
#include "support/FakeWordProcessor.h"
#include "support/Files.h"
#include "support/PrintQt.h"

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class NoPictures final : public PictureReader {
public:
    [[nodiscard]] std::optional<QSize> pixelSize(const QString&) override { return {}; }
};

class CheckCommandTest : public testing::Test {
protected:
    CheckCommandTest() {
        output.open(QIODevice::WriteOnly);
        errors.open(QIODevice::WriteOnly);
    }

    int check(const QJsonObject& project, const QStringList& options = {}) {
        writeFile(path, QJsonDocument(project).toJson());
        return run(QStringList{u"check"_s, path} + options);
    }

    int run(const QStringList& arguments) {
        output.buffer().clear();
        output.seek(0);
        CliContext context{output, errors, folders, pictures, word};
        return CliProgram(context).run(arguments);
    }

    QString text() const { return QString::fromUtf8(output.data()); }

    QJsonObject json() const {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(output.data(), &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << output.data().toStdString();
        return document.object();
    }

    /// A project all of whose sections are complete and of which nothing is missing.
    static QJsonObject completeProject() {
        return {{u"txtFileNo"_s, u"QF-1"_s},
                {u"txtInventionTitle"_s, u"Door Hinge"_s},
                {u"txtTechTitle"_s, u"hinge"_s},
                {u"txtNameStep1"_s, u"Ann"_s},
                {u"txtLastStep1"_s, u"Colby"_s},
                {u"txtAddress1Step1"_s, u"1 Mill Street"_s},
                {u"txtCityStep1"_s, u"Salem"_s},
                {u"cboStateStep1"_s, u"OR"_s},
                {u"txtZipStep1"_s, u"97301"_s},
                {u"cboCountryStep1"_s, u"United States"_s},
                {u"cboInventorsNum"_s, u"1"_s},
                {u"txtNameStep2"_s, QJsonArray{u"Ann"_s}},
                {u"txtLastStep2"_s, QJsonArray{u"Colby"_s}},
                {u"txtAddress1Step2"_s, QJsonArray{u"1 Mill Street"_s}},
                {u"txtCityStep2"_s, QJsonArray{u"Salem"_s}},
                {u"cboStateStep2"_s, QJsonArray{u"OR"_s}},
                {u"txtZipStep2"_s, QJsonArray{u"97301"_s}},
                {u"cboCitizenshipStep2"_s, QJsonArray{u"United States"_s}},
                {u"txtPurpose"_s, u"hanging doors"_s},
                {u"cboObjectNum"_s, u"1"_s},
                {u"txtObject"_s, QJsonArray{u"is silent"_s}},
                {u"cboFiguresNum"_s, u"0"_s},
                {u"txtMainElement"_s, u"a leaf and a barrel"_s},
                {u"cboMainElementNum"_s, u"1"_s},
                {u"txtElementName"_s, QJsonArray{u"leaf"_s}},
                {u"txtElementDes"_s, QJsonArray{u"The leaf 10 is flat."_s}},
                {u"txtElementMain"_s, QJsonArray{u"Leaf"_s}},
                {u"txtElementSub2"_s, QJsonArray{u"barrel"_s}},
                {u"txtMainElementNameDetail"_s, QJsonArray{u"The leaf 10 has a barrel 12."_s}},
                {u"txtDesConnections"_s, u"The barrel 12 is rolled."_s},
                {u"txtOperation"_s, u"It turns."_s}};
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"project.json"_s);
    QBuffer output;
    QBuffer errors;
    FakeFolders folders;
    FakeWordProcessor word;
    NoPictures pictures;
};

} // namespace

TEST_F(CheckCommandTest, a_complete_project_with_nothing_missing_is_done) {
    EXPECT_EQ(check(completeProject()), 0);
    EXPECT_EQ(text(), u"Section 1: OK\nSection 2: OK\nSection 3: OK\nSection 4: OK\n"
                      "Section 5: OK\nSection 6: OK\nSection 7: OK\nSection 8: OK\n"
                      "Verification: nothing is missing\n"_s);
    EXPECT_EQ(errors.data(), QByteArray());
}

TEST_F(CheckCommandTest, what_is_missing_is_listed_with_its_numeral) {
    QJsonObject project = completeProject();
    project[u"txtElementMain"_s] = QJsonArray{u"doorpost"_s};
    project[u"txtElementSub3"_s] = QJsonArray{u"pin\r\nhead"_s};
    EXPECT_EQ(check(project), 1);
    EXPECT_EQ(text().section(u"Verification"_s, 1), u": 3 missing from the text\n"
                                                    "  Main Element 10: \"doorpost\"\n"
                                                    "  Sub-Element 13: \"pin\\r\\nhead\"\n"
                                                    "  Reference Numerals 13\n"_s);
}

TEST_F(CheckCommandTest, no_control_character_of_a_name_reaches_the_terminal) {
    QJsonObject project = completeProject();
    project[u"txtElementMain"_s] = QJsonArray{u"a\u001b[31m\u009b31m\u007f"_s};
    EXPECT_EQ(check(project), 1);
    EXPECT_TRUE(text().endsWith(uR"(  Main Element 10: "a\u001b[31m\u009b31m\u007f")"_s + u'\n'));
}

TEST_F(CheckCommandTest, an_incomplete_section_is_a_finding_of_its_own) {
    QJsonObject project = completeProject();
    project[u"txtPurpose"_s] = u""_s;
    EXPECT_EQ(check(project), 1);
    EXPECT_TRUE(text().contains(u"Section 2: OK\nSection 3: WARNING\nSection 4: OK\n"_s));
    EXPECT_TRUE(text().endsWith(u"Verification: nothing is missing\n"_s));
}

TEST_F(CheckCommandTest, a_project_without_a_filled_cell_has_nothing_to_verify) {
    EXPECT_EQ(check({}), 1);
    EXPECT_TRUE(text().endsWith(u"Verification: nothing to verify\n"_s));
    EXPECT_EQ(check({}, {u"--json"_s}), 1);
    EXPECT_EQ(json().value(u"verifyErrorCount"_s), QJsonValue(0));
    EXPECT_EQ(json().value(u"complete"_s), QJsonValue(false));
}

TEST_F(CheckCommandTest, json_holds_the_verdicts_the_count_and_the_lists) {
    QJsonObject project = completeProject();
    project[u"txtPurpose"_s] = u""_s;
    project[u"cboMainElementNum"_s] = u"2"_s;
    project[u"txtElementMain"_s] = QJsonArray{u"door \"post\""_s, u"leaf"_s};
    project[u"txtElementSub3"_s] = QJsonArray{u"pin\r\nhead"_s, u"barrel"_s};
    EXPECT_EQ(check(project, {u"--json"_s}), 1);
    QJsonArray sections;
    for (int number = 1; number <= 8; ++number)
        sections.append(QJsonObject{
            {u"number"_s, number},
            {u"verdict"_s, number == 3 || number == 5 || number == 7 ? u"WARNING"_s : u"OK"_s}});
    EXPECT_EQ(json(), (QJsonObject{
                          {u"sections"_s, sections},
                          {u"complete"_s, false},
                          {u"verifyErrorCount"_s, 5},
                          {u"missingMainElements"_s, QJsonArray{u"door \"post\""_s}},
                          {u"missingSubElements"_s, QJsonArray{u"pin\r\nhead"_s}},
                          {u"missingNumerals"_s, QJsonArray{u"13"_s, u"20"_s, u"23"_s}},
                      }))
        << text().toStdString();
}

TEST_F(CheckCommandTest, json_of_a_clean_project_has_empty_lists) {
    EXPECT_EQ(check(completeProject(), {u"--json"_s}), 0);
    EXPECT_EQ(json().value(u"complete"_s), QJsonValue(true));
    EXPECT_EQ(json().value(u"missingMainElements"_s), QJsonValue(QJsonArray()));
    EXPECT_EQ(json().value(u"missingSubElements"_s), QJsonValue(QJsonArray()));
    EXPECT_EQ(json().value(u"missingNumerals"_s), QJsonValue(QJsonArray()));
}

TEST_F(CheckCommandTest, a_project_that_has_passed_before_is_verified_all_the_same) {
    QJsonObject project = completeProject();
    project[u"verifyPassed"_s] = true;
    project[u"txtElementMain"_s] = QJsonArray{u"doorpost"_s};
    EXPECT_EQ(check(project), 1);
}

TEST_F(CheckCommandTest, a_file_that_cannot_be_read_is_a_failure) {
    EXPECT_EQ(run({u"check"_s, folder.filePath(u"none.json"_s)}), 2);
    EXPECT_TRUE(errors.data().contains("none.json"));
    EXPECT_EQ(text(), u""_s);
}

TEST_F(CheckCommandTest, two_projects_or_an_unknown_option_are_a_usage_error) {
    EXPECT_EQ(run({u"check"_s}), 2);
    EXPECT_EQ(run({u"check"_s, path, path}), 2);
    EXPECT_EQ(check(completeProject(), {u"--xml"_s}), 2);
    EXPECT_EQ(text(), u""_s);
}

TEST_F(CheckCommandTest, the_error_report_is_exported_as_a_page) {
    QJsonObject project = completeProject();
    project[u"txtElementMain"_s] = QJsonArray{u"doorpost"_s};
    writeFile(path, QJsonDocument(project).toJson());
    folders.temporary = folder.path();
    const QString report = folder.filePath(u"report.html"_s);
    EXPECT_EQ(run({u"export"_s, path, u"--report"_s, report}), 0) << errors.data().toStdString();
    const QByteArray page = contentOf(report);
    EXPECT_TRUE(page.contains("1. Main Elements (Possible Errors)"));
    EXPECT_TRUE(page.contains("- doorpost"));
    EXPECT_TRUE(page.contains("2.Sub-Elements (Verified)"));
}

TEST_F(CheckCommandTest, an_error_report_never_replaces_the_project) {
    writeFile(path, QJsonDocument(completeProject()).toJson());
    const QByteArray before = contentOf(path);
    EXPECT_EQ(run({u"export"_s, path, u"--report"_s, path}), 2);
    EXPECT_EQ(contentOf(path), before);
}
