#include "cli/ExportCommand.h"

#include "cli/CliRun.h"

#include <QFile>

#include <sys/stat.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString Export = u"export"_s;
const QString Html = u"--html"_s;
const QString Word = u"--word"_s;
const QString Index = u"--index"_s;
const QString Incomplete = u"--incomplete"_s;

class ExportCommandTest : public CliRun {
protected:
    QString complete = project(completeProject());
    QString page = place(u"draft.htm"_s);
    QString index = place(u"index.htm"_s);

    /// What stands in the test's folder beside the temporary one.
    [[nodiscard]] QStringList files() const {
        return QDir(folder.path()).entryList(QDir::Files | QDir::System | QDir::Hidden, QDir::Name);
    }
};

} // namespace

TEST_F(ExportCommandTest, writes_the_final_draft_as_a_page) {
    EXPECT_EQ(run({Export, complete, Html, page}), 0);
    EXPECT_EQ(output + error, QByteArray());
    const QByteArray draft = contentOf(page);
    EXPECT_TRUE(draft.contains("Folding Easel"));
    EXPECT_TRUE(draft.contains("(QF-7)"));
    EXPECT_FALSE(draft.contains("onselectstart"));
}

TEST_F(ExportCommandTest, writes_the_index_as_a_page_of_its_own) {
    EXPECT_EQ(run({Export, Index, index, complete}), 0);
    const QByteArray elements = contentOf(index);
    EXPECT_TRUE(elements.contains("Leg") && elements.contains("Foot"));
    EXPECT_FALSE(elements.contains("Folding Easel"));
    EXPECT_EQ(files(), QStringList({u"index.htm"_s, u"project.json"_s}));
}

TEST_F(ExportCommandTest, prints_the_preview_with_the_footer_of_the_wizard) {
    const QString pdf = place(u"draft.pdf"_s);
    EXPECT_EQ(run({Export, complete, u"--pdf"_s, pdf}), 0);
    EXPECT_EQ(contentOf(pdf), QByteArray("%PDF"));
    ASSERT_EQ(prints.size(), 1);
    EXPECT_TRUE(prints[0].html.contains(u"Folding Easel"));
    EXPECT_TRUE(prints[0].html.contains(u"onselectstart"));
    EXPECT_EQ(prints[0].title, u"Project - QF-7"_s);
    EXPECT_EQ(prints[0].header, u""_s);
    EXPECT_EQ(prints[0].footer, u"&bPage &p of &P&b"_s);
}

TEST_F(ExportCommandTest, keeps_the_old_file_when_the_new_one_cannot_be_written) {
    const QString pdf = place(u"missing/draft.pdf"_s);
    expectFailure({Export, complete, u"--pdf"_s, pdf}, pdf + u": No such file or directory"_s);
    const QString incomplete = project("{}", u"new.json"_s);
    EXPECT_EQ(run({Export, incomplete, u"--pdf"_s, place(u"draft.pdf"_s)}), 2);
    EXPECT_FALSE(QFileInfo::exists(place(u"draft.pdf"_s)));
}

TEST_F(ExportCommandTest, writes_several_outputs_at_once_as_it_writes_each_alone) {
    run({Export, complete, Html, page});
    run({Export, complete, Index, index});
    const QByteArray pageAlone = contentOf(page);
    const QByteArray indexAlone = contentOf(index);
    QFile::remove(page);
    QFile::remove(index);
    EXPECT_EQ(run({Export, complete, Html, page, Index, index}), 0);
    EXPECT_EQ(contentOf(page), pageAlone);
    EXPECT_EQ(contentOf(index), indexAlone);
}

TEST_F(ExportCommandTest, takes_an_option_s_value_behind_an_equals_sign) {
    EXPECT_EQ(run({Export, u"--html="_s + page, complete}), 0);
    EXPECT_TRUE(QFileInfo::exists(page));
}

TEST_F(ExportCommandTest, replaces_an_older_output_and_keeps_its_rights) {
    writeFile(page, "old");
    ASSERT_TRUE(QFile::setPermissions(page, QFile::ReadOwner | QFile::WriteOwner));
    EXPECT_EQ(run({Export, complete, Html, page}), 0);
    EXPECT_TRUE(contentOf(page).contains("Folding Easel"));
    EXPECT_FALSE(QFileInfo(page).permission(QFile::ReadOther));
    EXPECT_EQ(files(), QStringList({u"draft.htm"_s, u"project.json"_s}));
}

TEST_F(ExportCommandTest, writes_the_final_draft_as_a_word_document) {
    word.templateText = u"A [1-INVENTION TITLE]"_s;
    const QString document = place(u"draft.doc"_s);
    EXPECT_EQ(run({Export, complete, Word, document}), 0);
    EXPECT_EQ(output + error, QByteArray());
    EXPECT_EQ(contentOf(document), "A folding easel");
    EXPECT_EQ(files(), QStringList({u"draft.doc"_s, u"project.json"_s}));
    EXPECT_TRUE(QDir(folders.temporary).isEmpty());
}

TEST_F(ExportCommandTest, tells_in_one_line_why_there_is_no_word_document) {
    const QString document = place(u"draft.doc"_s);
    word.failingOperation = 1;
    expectFailure({Export, complete, Word, document},
                  document + u": the word processor has died"_s);
    word.failingOperation = 0;
    word.openDocuments = {document};
    expectFailure({Export, complete, Word, document},
                  document + u": the document is open in the word processor"_s);
    word.installed = false;
    expectFailure({Export, complete, Word, document},
                  document + u": --word needs LibreOffice Writer, which is not installed"_s);
    EXPECT_EQ(files(), QStringList({u"project.json"_s}));
}

TEST_F(ExportCommandTest, names_the_picture_that_is_missing_from_a_word_document) {
    word.templateText = u"[IMAGE OF DRAWING]"_s;
    const QString path = project(R"({"txtAttachFig": ["gone.png"]})");
    EXPECT_EQ(run({Export, path, Incomplete, Word, place(u"draft.doc"_s)}), 2);
    EXPECT_TRUE(error.contains("there is no such picture")) << error.toStdString();
    EXPECT_FALSE(QFileInfo::exists(place(u"draft.doc"_s)));
}

TEST_F(ExportCommandTest, lists_the_sections_that_are_incomplete) {
    const QString path = project("{}", u"new.json"_s);
    expectFailure({Export, path, Html, page},
                  path + u": data is missing from Sections 1, 2, 3, 4, 5, 6, 7, 8; "
                         "--incomplete exports all the same"_s);
    project(completeProject().replace("It folds", "  "), u"new.json"_s);
    expectFailure({Export, path, Html, page},
                  path + u": data is missing from Section 3; --incomplete exports all the same"_s);
    EXPECT_FALSE(QFileInfo::exists(page));
}

TEST_F(ExportCommandTest, takes_a_heading_of_the_views_as_missing) {
    const QByteArray figure = R"("cboFiguresNum": "1", "txtAttachFig": ["a.png"],
        "txtFigureDetail": ["It stands"], "cboFigureType": ["--- 2 Dimensional Views ---"])";
    const QString path =
        project(completeProject().replace(R"("cboFiguresNum": "0")", figure), u"heading.json"_s);
    expectFailure({Export, path, Html, page},
                  path + u": data is missing from Section 4; --incomplete exports all the same"_s);
}

TEST_F(ExportCommandTest, exports_an_incomplete_project_when_it_is_told_to) {
    EXPECT_EQ(run({Export, project("{}"), Incomplete, Html, page, Index, index}), 0);
    EXPECT_EQ(error, QByteArray());
    EXPECT_TRUE(contentOf(page).contains("Provisional Patent Application"));
    EXPECT_TRUE(QFileInfo::exists(index));
}

TEST_F(ExportCommandTest, draws_figures_in_the_size_of_their_pictures) {
    const QString picture = place(u"fig 1.png"_s);
    writeFile(picture);
    pictures.sizes[picture] = QSize(1320, 400);
    const QString path = project(R"({"txtAttachFig": ["fig 1.png"]})");
    EXPECT_EQ(run({Export, path, Incomplete, Html, page}), 0);
    EXPECT_TRUE(contentOf(page).contains("<img src=\"file:///" + picture.toUtf8() +
                                         "\" width =\"660\" height =\"200\"> "));
}

TEST_F(ExportCommandTest, draws_a_picture_that_cannot_be_read_without_a_size) {
    EXPECT_EQ(run({Export, project(R"({"txtAttachFig": ["gone.png"]})"), Incomplete, Html, page}),
              0);
    EXPECT_TRUE(contentOf(page).contains("\" width =\"\" height =\"\"> "));
}

TEST_F(ExportCommandTest, expects_a_project_and_an_output) {
    const QString usage =
        u"export PROJECT [--html FILE] [--word FILE] [--pdf FILE] [--index FILE] [--report FILE] "
        "[--incomplete]"_s;
    expectFailure({Export}, u"export: expects one project: "_s + usage);
    expectFailure({Export, complete, complete, Html, page},
                  u"export: expects one project: "_s + usage);
    expectFailure({Export, complete}, u"export: expects an output: "_s + usage);
    expectFailure({Export, complete, Incomplete}, u"export: expects an output: "_s + usage);
}

TEST_F(ExportCommandTest, refuses_options_that_make_no_sense) {
    expectFailure({Export, complete, u"--htm"_s, page}, u"export: Unknown option 'htm'."_s);
    expectFailure({Export, complete, Html}, u"export: Missing value after '--html'."_s);
    expectFailure({Export, complete, u"--html="_s}, u"export: --html expects the name of a file"_s);
    expectFailure({Export, complete, Html, u""_s}, u"export: --html expects the name of a file"_s);
    expectFailure({Export, complete, Html, page, u"--incomplete=yes"_s},
                  u"export: Unexpected value after '--incomplete'."_s);
    expectFailure({Export, complete, Html, page, Html, index},
                  u"export: --html is given more than once"_s);
    EXPECT_EQ(files(), QStringList({u"project.json"_s}));
}

TEST_F(ExportCommandTest, replaces_neither_the_project_nor_another_output) {
    const QByteArray before = contentOf(complete);
    expectFailure({Export, complete, Html, complete},
                  complete + u": --html would replace the project"_s);
    expectFailure({Export, complete, Html, page, Index, page},
                  page + u": --index would replace the output of --html"_s);
    const QString winding = place(u"temp/../draft.htm"_s);
    expectFailure({Export, complete, Html, page, Index, winding},
                  winding + u": --index would replace the output of --html"_s);
    EXPECT_EQ(contentOf(complete), before);
    EXPECT_EQ(files(), QStringList({u"project.json"_s}));
}

TEST_F(ExportCommandTest, replaces_no_picture_of_the_project) {
    const QString picture = place(u"fig1.png"_s);
    const QString link = place(u"fig1.lnk"_s);
    writeFile(picture);
    ASSERT_TRUE(QFile::link(picture, link));
    const QByteArray before = contentOf(picture);
    const QString path = project(R"({"txtAttachFig": ["fig1.png"]})");
    expectFailure({Export, path, Incomplete, Html, page, Index, picture},
                  picture + u": --index would replace the picture of figure 1"_s);
    expectFailure({Export, path, Incomplete, Html, link},
                  link + u": --html would replace the picture of figure 1"_s);
    EXPECT_EQ(contentOf(picture), before);
    EXPECT_FALSE(QFile::exists(page));
}

TEST_F(ExportCommandTest, sees_through_links_what_an_output_would_replace) {
    const QString toProject = place(u"project.lnk"_s);
    const QString toNothing = place(u"nothing.lnk"_s);
    const QString toFolder = place(u"folder.lnk"_s);
    ASSERT_TRUE(QFile::link(complete, toProject));
    ASSERT_TRUE(QFile::link(page, toNothing));
    ASSERT_TRUE(QFile::link(folder.path(), toFolder));
    expectFailure({Export, complete, Html, toProject},
                  toProject + u": --html would replace the project"_s);
    expectFailure({Export, toProject, Html, complete},
                  complete + u": --html would replace the project"_s);
    expectFailure({Export, complete, Html, toNothing, Index, page},
                  page + u": --index would replace the output of --html"_s);
    const QString throughFolder = toFolder + u"/draft.htm"_s;
    expectFailure({Export, complete, Html, page, Index, throughFolder},
                  throughFolder + u": --index would replace the output of --html"_s);
}

TEST_F(ExportCommandTest, takes_no_folder_s_and_no_pipe_s_place) {
    expectFailure({Export, complete, Html, folders.temporary},
                  folders.temporary + u": --html can only write a file"_s);
    const QString pipe = place(u"pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    expectFailure({Export, complete, Index, pipe}, pipe + u": --index can only write a file"_s);
}

TEST_F(ExportCommandTest, names_an_output_that_cannot_be_written) {
    const QString nowhere = place(u"missing/draft.htm"_s);
    expectFailure({Export, complete, Html, nowhere}, nowhere + u": No such file or directory"_s);
    expectFailure({Export, complete, Index, nowhere}, nowhere + u": No such file or directory"_s);
    const QString longName = place(QString(300, u'x'));
    expectFailure({Export, complete, Html, longName}, longName + u": File name too long"_s);
    EXPECT_EQ(files(), QStringList({u"project.json"_s}));
}

TEST_F(ExportCommandTest, keeps_the_old_output_when_the_project_is_wrong_or_incomplete) {
    writeFile(page, "old");
    EXPECT_EQ(run({Export, project(R"({"x": 1})", u"wrong.json"_s), Html, page}), 2);
    EXPECT_EQ(run({Export, project("{}", u"new.json"_s), Html, page}), 2);
    EXPECT_EQ(contentOf(page), "old");
}

TEST_F(ExportCommandTest, keeps_the_first_output_when_the_second_fails) {
    const QString nowhere = place(u"missing/index.htm"_s);
    expectFailure({Export, complete, Html, page, Index, nowhere},
                  nowhere + u": No such file or directory"_s);
    EXPECT_TRUE(contentOf(page).contains("</html>"));
}

TEST_F(ExportCommandTest, names_the_temporary_file_that_cannot_be_written) {
    folders.temporary = place(u"gone"_s);
    writeFile(page, "old");
    EXPECT_EQ(run({Export, complete, Html, page}), 2);
    EXPECT_TRUE(error.startsWith("quillford-cli: " + folders.temporary.toUtf8() + "/Temp"));
    EXPECT_TRUE(error.endsWith(".htm: No such file or directory\n"));
    EXPECT_EQ(contentOf(page), "old");
}

TEST_F(ExportCommandTest, refuses_a_project_that_asks_for_gigabytes) {
    // Values are open to later items: each mark of the purpose holds the next text a thousand
    // times.
    const QByteArray bomb = R"({"txtPurpose": ")" + QByteArray("[5-GENERAL]").repeated(20000) +
                            R"(", "txtMainElement": ")" + QByteArray(1000000, 'x') + R"("})";
    EXPECT_EQ(run({Export, project(bomb), Incomplete, Html, page}), 2);
    EXPECT_TRUE(error.contains("is over 256 MB\n")) << error.toStdString();
    EXPECT_EQ(error.count('\n'), 1);
    EXPECT_FALSE(QFileInfo::exists(page));
}
