#include "cli/ShowCommand.h"

#include "cli/CliRun.h"
#include "persistence/project/JsonReader.h"
#include "persistence/project/JsonWriter.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class ShowCommandTest : public CliRun {};

} // namespace

TEST_F(ShowCommandTest, prints_the_project_as_json) {
    const QString path = project(completeProject());
    Project expected;
    readProjectJson(completeProject(), folder.path(), expected);
    EXPECT_EQ(run({u"show"_s, path}), 0);
    EXPECT_EQ(output, writeProjectJson(expected));
    EXPECT_EQ(error, QByteArray());
}

TEST_F(ShowCommandTest, prints_what_it_reads_back_the_same) {
    run({u"show"_s, project(completeProject())});
    const QByteArray first = output;
    EXPECT_EQ(run({u"show"_s, project(first)}), 0);
    EXPECT_EQ(output, first);
}

TEST_F(ShowCommandTest, expects_one_project) {
    const QString line = u"show: expects one project: show PROJECT"_s;
    expectFailure({u"show"_s}, line);
    expectFailure({u"show"_s, u""_s}, line);
    expectFailure({u"show"_s, u"a.json"_s, u"b.json"_s}, line);
    expectFailure({u"show"_s, u"--"_s}, line);
}

TEST_F(ShowCommandTest, refuses_an_option_that_it_does_not_have) {
    expectFailure({u"show"_s, u"--html"_s, u"a.json"_s}, u"show: Unknown option 'html'."_s);
    expectFailure({u"show"_s, u"-x"_s, u"a.json"_s}, u"show: Unknown option 'x'."_s);
}

TEST_F(ShowCommandTest, takes_a_name_with_a_hyphen_behind_two) {
    const QString before = QDir::currentPath();
    project(R"({"txtFileNo": "7"})", u"-x.json"_s);
    ASSERT_TRUE(QDir::setCurrent(folder.path()));
    EXPECT_EQ(run({u"show"_s, u"--"_s, u"-x.json"_s}), 0);
    QDir::setCurrent(before);
    EXPECT_TRUE(output.startsWith("{\n  \"txtFileNo\": \"7\",\n"));
}

TEST_F(ShowCommandTest, names_a_file_that_cannot_be_read) {
    const QString missing = place(u"missing.json"_s);
    expectFailure({u"show"_s, missing}, missing + u": No such file or directory"_s);
    expectFailure({u"show"_s, folder.path()}, folder.path() + u": file to open is a directory"_s);
    const QString longName = place(QString(5000, u'x'));
    expectFailure({u"show"_s, longName}, longName + u": File name too long"_s);
}

TEST_F(ShowCommandTest, names_file_and_key_of_a_project_that_is_wrong) {
    const QString path = project(R"({"txtFile\nNo": "7"})");
    expectFailure({u"show"_s, path}, path + u": \"txtFile No\" is no field of a project"_s);
    project(R"({"cboObjectNum": "21"})");
    expectFailure({u"show"_s, path},
                  path + u": \"cboObjectNum\" must be one of \"1\" to \"20\", not \"21\""_s);
    project("no project");
    expectFailure({u"show"_s, path}, path + u": it is no JSON: illegal value at byte 1"_s);
}
