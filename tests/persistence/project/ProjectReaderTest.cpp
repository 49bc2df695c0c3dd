#include "persistence/project/ProjectReader.h"

#include "base/Error.h"
#include "support/ErrorOf.h"
#include "support/Files.h"
#include "support/PrintQt.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

Error errorOfReading(const QString& path) {
    return errorOf([&] {
        Project project;
        readProject(path, project);
    });
}

} // namespace

TEST(ProjectReader, reads_a_json_file_whatever_its_name) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"my caf\u00E9.ivd"_s);
    writeFile(path, R"({"txtFileNo": "QF-1"})");
    Project project;
    readProject(path, project);
    EXPECT_EQ(project.fields.txtFileNo.text(), u"QF-1"_s);
}

TEST(ProjectReader, takes_relative_pictures_from_the_folder_of_the_file) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a/project.json"_s);
    writeFile(path, R"({"txtAttachFig": ["../figures/1.png"]})");
    Project project;
    readProject(path, project);
    EXPECT_EQ(project.fields.txtAttachFig(0).text(), folder.filePath(u"figures/1.png"_s));
}

TEST(ProjectReader, makes_the_folder_of_a_relative_path_absolute) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"project.json"_s);
    writeFile(path, R"({"txtAttachFig": ["1.png"]})");
    Project project;
    readProject(QDir::current().relativeFilePath(path), project);
    EXPECT_EQ(project.fields.txtAttachFig(0).text(), folder.filePath(u"1.png"_s));
}

TEST(ProjectReader, raises_an_error_that_names_a_file_which_cannot_be_read) {
    const QTemporaryDir folder;
    const QString missing = folder.filePath(u"missing.json"_s);
    EXPECT_EQ(errorOfReading(missing).source(), missing);
    EXPECT_EQ(errorOfReading(folder.path()).source(), folder.path());
}

TEST(ProjectReader, raises_an_error_for_a_file_that_holds_no_project) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"empty.json"_s);
    writeFile(path);
    EXPECT_TRUE(errorOfReading(path).description().startsWith(u"it is no JSON: "));
    writeFile(path, QByteArray(4096, '\0'));
    EXPECT_TRUE(errorOfReading(path).description().startsWith(u"it is no JSON: "));
}
