#include "persistence/project/WorkingCopies.h"

#include "persistence/project/ProjectFileFixture.h"
#include "support/ErrorOf.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class WorkingCopies_ : public ProjectFileFixture {
protected:
    QString writeTempPicture(const QByteArray& bytes, const QString& path) {
        return WorkingCopies(project.fields, folders, pictures).writeTempPicture(bytes, path);
    }

    Project project;
};

} // namespace

TEST_F(WorkingCopies_, bear_the_last_component_of_a_path_of_either_system) {
    EXPECT_EQ(GetFileName(u"/home/ann/fig.png"_s), u"fig.png"_s);
    EXPECT_EQ(GetFileName(u"C:\\drawings\\fig.png"_s), u"fig.png"_s);
    EXPECT_EQ(GetFileName(u"C:\\a/b\\c/fig.png"_s), u"fig.png"_s);
    EXPECT_EQ(GetFileName(u"fig.png"_s), u"fig.png"_s);
    EXPECT_EQ(GetFileName(u"folder/"_s), QString());
    EXPECT_EQ(GetFileName(QString()), QString());
}

TEST_F(WorkingCopies_, never_leave_the_temporary_folder) {
    for (const QString& path : {u"..\\..\\x"_s, u"/etc/passwd"_s, u"C:\\a\\b.png"_s, u"../../y"_s})
        EXPECT_EQ(writeTempPicture("bytes", path), folders.temporary + u'/' + GetFileName(path));
    EXPECT_EQ(contentOf(folders.temporary + u"/passwd"_s), "bytes");
}

TEST_F(WorkingCopies_, refuse_a_name_that_no_file_can_bear) {
    for (const QString& path : {QString(), u"."_s, u".."_s, u"a/.."_s, u"C:\\."_s, u"folder/"_s,
                                QString(300, u'x'), u"a\0b.png"_s, QString(200, u'\u00e9')}) {
        const Error error = errorOf([&] { writeTempPicture("bytes", path); });
        EXPECT_FALSE(error.description().isEmpty());
    }
    EXPECT_TRUE(QDir(folders.temporary).isEmpty());
}

TEST_F(WorkingCopies_, follow_no_link) {
    const QString victim = makeFile(u"victim"_s, "untouched");
    ASSERT_TRUE(QFile::link(victim, folders.temporary + u"/fig.png"_s));
    errorOf([&] { writeTempPicture("bytes", u"fig.png"_s); });
    EXPECT_EQ(contentOf(victim), "untouched");
}

TEST_F(WorkingCopies_, are_not_written_into_a_folder_of_their_name) {
    ASSERT_TRUE(QDir().mkpath(folders.temporary + u"/fig.png"_s));
    errorOf([&] { writeTempPicture("bytes", u"fig.png"_s); });
}

TEST_F(WorkingCopies_, keep_the_tail_of_an_older_longer_file) {
    makeFile(u"temp/fig.png"_s, "0123456789");
    writeTempPicture("new", u"fig.png"_s);
    EXPECT_EQ(contentOf(folders.temporary + u"/fig.png"_s), "new3456789");
}

TEST_F(WorkingCopies_, of_two_pictures_of_one_name_share_a_file) {
    WorkingCopies copies(project.fields, folders, pictures);
    project.fields.setPanelCount(FieldGroup::Figures, 2);
    copies.takePicture(0, u"/a/fig.png"_s, "first");
    copies.takePicture(1, u"/b/fig.png"_s, "other");
    EXPECT_EQ(project.fields.figureState(0).workingCopy, project.fields.figureState(1).workingCopy);
    EXPECT_EQ(contentOf(project.fields.figureState(0).workingCopy), "other");
}

TEST_F(WorkingCopies_, give_a_figure_its_size_for_the_draft) {
    pictures.sizes.insert(folders.temporary + u"/fig.png"_s, QSize(800, 600));
    WorkingCopies(project.fields, folders, pictures).takePicture(0, u"fig.png"_s, "bytes");
    EXPECT_EQ(project.fields.figureState(0).sizeText, u"660, 495"_s);
}

TEST_F(WorkingCopies_, stay_beside_a_figure_whose_picture_cannot_be_decoded) {
    WorkingCopies(project.fields, folders, pictures).takePicture(0, u"fig.png"_s, "bytes");
    EXPECT_EQ(project.fields.figureState(0).workingCopy, folders.temporary + u"/fig.png"_s);
    EXPECT_EQ(project.fields.figureState(0).sizeText, QString());
}
