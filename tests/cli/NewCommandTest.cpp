#include "cli/NewCommand.h"

#include "cli/CliRun.h"
#include "persistence/compound/StorageModes.h"
#include "persistence/compound/mdlStorage.h"

#include <QCryptographicHash>
#include <QJsonDocument>
#include <QJsonObject>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class NewCommandTest : public CliRun {
protected:
    int make(const QByteArray& json) { return run({u"new"_s, project(json), file}); }

    /// What `show` prints of the project file.
    QJsonObject shown() {
        EXPECT_EQ(run({u"show"_s, file}), 0);
        return QJsonDocument::fromJson(output).object();
    }

    void destroy(const QString& element) {
        Storage root = OpenStorageFile(file);
        root.DestroyElement(element);
        root.Commit(0);
    }

    void writeVersion(const QString& version) {
        Storage root = OpenStorageFile(file);
        root.CreateStream(u"Section Version"_s, StorageMode::Exclusive).WriteData(version);
        root.Commit(0);
    }

    [[nodiscard]] QStringList files() const {
        return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
    }

    const QString file = place(u"out.ivd"_s);
};

} // namespace

TEST_F(NewCommandTest, makes_a_project_file_that_shows_what_the_json_says) {
    const QByteArray json = completeProject();
    ASSERT_EQ(make(json), 0);
    EXPECT_EQ(error, QByteArray());
    const QJsonObject wanted = QJsonDocument::fromJson(json).object();
    const QJsonObject object = shown();
    for (auto entry = wanted.begin(); entry != wanted.end(); ++entry)
        EXPECT_EQ(object.value(entry.key()), entry.value()) << qPrintable(entry.key());
    EXPECT_EQ(object.value(u"Section Version"_s), u"3.1"_s);
    EXPECT_TRUE(object.value(u"Pictures"_s).isArray());
}

TEST_F(NewCommandTest, gives_what_the_json_leaves_out_the_value_of_a_new_project) {
    ASSERT_EQ(make("{}"), 0);
    const QJsonObject object = shown();
    EXPECT_EQ(object.value(u"cboObjectNum"_s), u"4"_s);
    EXPECT_EQ(object.value(u"cboStateStep1"_s), u"AK"_s);
}

TEST_F(NewCommandTest, takes_what_show_printed) {
    ASSERT_EQ(make(completeProject()), 0);
    run({u"show"_s, file});
    const QByteArray first = output;
    ASSERT_EQ(make(first), 0);
    run({u"show"_s, file});
    EXPECT_EQ(output, first);
}

TEST_F(NewCommandTest, stores_the_pictures_that_the_json_names) {
    writeFile(place(u"figures/a.png"_s), "bytes of a picture");
    ASSERT_EQ(make(R"({"txtAttachFig": ["figures/a.png"]})"), 0);
    const QJsonObject picture = shown().value(u"Pictures"_s)[0].toObject();
    EXPECT_EQ(picture.value(u"index"_s), 0);
    EXPECT_EQ(picture.value(u"path"_s), place(u"figures/a.png"_s));
    EXPECT_EQ(picture.value(u"size"_s), 18);
    EXPECT_EQ(
        picture.value(u"sha256"_s),
        QString::fromLatin1(
            QCryptographicHash::hash("bytes of a picture", QCryptographicHash::Sha256).toHex()));
}

TEST_F(NewCommandTest, names_a_picture_that_is_missing_or_empty_and_makes_nothing) {
    project(R"({"txtAttachFig": ["gone.png"]})");
    expectFailure({u"new"_s, place(u"project.json"_s), file},
                  place(u"gone.png"_s) + u": No such file or directory"_s);
    writeFile(place(u"gone.png"_s), {});
    expectFailure({u"new"_s, place(u"project.json"_s), file},
                  place(u"gone.png"_s) + u": the picture holds no bytes"_s);
    EXPECT_EQ(files(), QStringList({u"gone.png"_s, u"project.json"_s}));
}

TEST_F(NewCommandTest, replaces_an_older_file_whole) {
    writeFile(file, QByteArray(100000, 'x'));
    ASSERT_EQ(make("{}"), 0);
    EXPECT_LT(QFileInfo(file).size(), 100000);
    EXPECT_EQ(shown().value(u"Section Version"_s), u"3.1"_s);
}

TEST_F(NewCommandTest, keeps_the_older_file_when_the_json_is_refused) {
    writeFile(file, "older");
    EXPECT_EQ(make(R"({"cboObjectNum": "21"})"), 2);
    EXPECT_EQ(contentOf(file), "older");
}

TEST_F(NewCommandTest, expects_two_files_that_are_not_the_same) {
    const QString usage = u"new: expects two files: new FIELDS.json OUT.ivd"_s;
    expectFailure({u"new"_s}, usage);
    expectFailure({u"new"_s, u"a.json"_s}, usage);
    expectFailure({u"new"_s, u"a.json"_s, u""_s}, usage);
    expectFailure({u"new"_s, u"a.json"_s, u"b.ivd"_s, u"c.ivd"_s}, usage);
    const QString json = project("{}");
    expectFailure({u"new"_s, json, json}, json + u": new would replace the fields"_s);
    EXPECT_EQ(contentOf(json), "{}");
}

TEST_F(NewCommandTest, names_a_folder_that_is_not_there_and_one_in_the_files_place) {
    const QString json = project("{}");
    const QString lost = place(u"no/such/out.ivd"_s);
    expectFailure({u"new"_s, json, lost}, lost + u": No such file or directory"_s);
    expectFailure({u"new"_s, json, folders.temporary},
                  folders.temporary + u": new can only write a file"_s);
}

TEST_F(NewCommandTest, leaves_a_project_of_which_the_others_say_what_is_missing) {
    ASSERT_EQ(make(completeProject()), 0);
    destroy(u"Section 7"_s);
    EXPECT_EQ(run({u"show"_s, file}), 0);
    EXPECT_EQ(QString::fromUtf8(error),
              u"quillford-cli: "_s + file + u": warning: \"Section 7\" is missing\n"_s);
    EXPECT_EQ(run({u"check"_s, file}), 1);
    EXPECT_EQ(run({u"export"_s, file, u"--html"_s, place(u"a.htm"_s)}), 2);
    EXPECT_EQ(run({u"export"_s, file, u"--incomplete"_s, u"--html"_s, place(u"a.htm"_s)}), 0);
}

TEST_F(NewCommandTest, leaves_a_project_that_is_refused_in_a_higher_version) {
    ASSERT_EQ(make("{}"), 0);
    for (const QString& version : {u"3.2"_s, u"four"_s}) {
        writeVersion(version);
        expectFailure({u"show"_s, file}, file + u": its version \""_s + version +
                                             u"\" is not one up to 3.1, which can be read"_s);
    }
    destroy(u"Section Version"_s);
    EXPECT_EQ(run({u"show"_s, file}), 2);
}

TEST_F(NewCommandTest, leaves_a_project_whose_pictures_an_export_shows_without_their_files) {
    writeFile(place(u"a.png"_s), "bytes of a picture");
    QByteArray json = completeProject();
    json.replace("\"cboFiguresNum\": \"0\"",
                 "\"txtAttachFig\": [\"a.png\"], \"cboFigureType\": [\"front view\"], "
                 "\"txtFigureDetail\": [\"It shows a leg\"]");
    ASSERT_EQ(make(json), 0);
    ASSERT_TRUE(QFile::remove(place(u"a.png"_s)));
    const QString copy = folders.temporary + u"/a.png"_s;
    pictures.sizes.insert(copy, QSize(300, 200));
    ASSERT_EQ(run({u"export"_s, file, u"--html"_s, place(u"a.htm"_s)}), 0) << error.constData();
    EXPECT_EQ(contentOf(copy), "bytes of a picture");
    EXPECT_TRUE(contentOf(place(u"a.htm"_s))
                    .contains(("<img src=\"file:///" + copy.toUtf8() +
                               "\" width =\"300\" height =\"200\"> ")));
}
