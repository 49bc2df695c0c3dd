#include "persistence/project/ProjectWriter.h"

#include "persistence/project/ProjectFileFixture.h"
#include "persistence/project/ProjectReader.h"
#include "support/ErrorOf.h"

#include <ctime>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class ProjectWriter_ : public ProjectFileFixture {};

constexpr qint64 EmptyText = 4; // a count of four zero bytes

} // namespace

TEST_F(ProjectWriter_, makes_every_stream_of_a_new_project) {
    write(Project());
    QStringList names;
    for (const VBSTATSTG& element : OpenStorageFile(file()).Elements())
        names.append(element.Name());
    for (int section = 1; section <= 8; ++section)
        EXPECT_TRUE(names.contains(u"Section %1"_s.arg(section))) << section;
    EXPECT_TRUE(names.contains(u"Section Version"_s));
    EXPECT_TRUE(names.contains(u"Section Verify"_s));
    EXPECT_TRUE(names.contains(u"Pictures"_s));
    EXPECT_TRUE(names.contains(u"\u0005SummaryInformation"_s));
    EXPECT_TRUE(names.contains(u"\u0005DocumentSummaryInformation"_s));
    EXPECT_EQ(names.size(), 13);
}

TEST_F(ProjectWriter_, writes_fourteen_empty_texts_a_state_and_a_country_of_a_new_project) {
    write(Project());
    const QStringList section = texts(u"Section 1"_s, 16);
    EXPECT_EQ(section.count(QString()), 14);
    EXPECT_EQ(section.at(10), u"AK"_s);
    EXPECT_EQ(section.at(12), u"United States"_s);
    EXPECT_EQ(sizeOf(u"Section 1"_s), 14 * EmptyText + (4 + 2 * 2) + (4 + 2 * 13));
}

TEST_F(ProjectWriter_, writes_one_inventor_of_a_new_project) {
    write(Project());
    const auto section = values(u"Section 2"_s, {FieldType::String, FieldType::Int16,
                                                 FieldType::String, FieldType::String});
    EXPECT_EQ(std::get<QString>(section[0]), u"1"_s);
    EXPECT_EQ(std::get<qint16>(section[1]), 0);
    EXPECT_EQ(sizeOf(u"Section 2"_s), (4 + 2) + 2 + 7 * EmptyText + (4 + 2 * 2) + (4 + 2 * 13));
}

TEST_F(ProjectWriter_, writes_the_version_and_the_flag_as_texts) {
    Project project;
    write(project);
    EXPECT_EQ(texts(u"Section Version"_s, 1), QStringList{u"3.1"_s});
    EXPECT_EQ(texts(u"Section Verify"_s, 1), QStringList{u"False"_s});
    project.state.verifyPassed = true;
    write(project);
    EXPECT_EQ(texts(u"Section Verify"_s, 1), QStringList{u"True"_s});
}

TEST_F(ProjectWriter_, writes_no_picture_of_a_project_without_attached_figures) {
    write(Project());
    Storage root = OpenStorageFile(file());
    EXPECT_EQ(root.OpenStorage(u"Pictures"_s, StorageMode::Exclusive).Elements().Count(), 0);
}

TEST_F(ProjectWriter_, trims_blanks_and_keeps_tabs_and_line_ends) {
    Project project;
    project.fields.txtPurpose.setText(u"  \tfirst\r\nsecond \r\n "_s);
    write(project);
    EXPECT_EQ(texts(u"Section 3"_s, 1), QStringList{u"\tfirst\r\nsecond \r\n"_s});
    EXPECT_EQ(project.fields.txtPurpose.text(), u"  \tfirst\r\nsecond \r\n "_s);
}

TEST_F(ProjectWriter_, writes_an_inventors_state_with_its_blanks) {
    Project project;
    project.fields.cboStateStep2(0).setText(u" CO "_s);
    project.fields.cboCitizenshipStep2(0).setText(u"Great Britain "_s);
    write(project);
    const auto section = values(
        u"Section 2"_s, {FieldType::String, FieldType::Int16, FieldType::String, FieldType::String,
                         FieldType::String, FieldType::String, FieldType::String, FieldType::String,
                         FieldType::String, FieldType::String, FieldType::String});
    EXPECT_EQ(std::get<QString>(section[8]), u" CO "_s);
    EXPECT_EQ(std::get<QString>(section[10]), u"Great Britain"_s);
}

TEST_F(ProjectWriter_, writes_the_group_of_the_one_panel_that_stands_without_figures) {
    Project project;
    project.fields.cboFiguresNum.setText(u"0"_s);
    project.fields.setPanelCount(FieldGroup::Figures, 0);
    project.fields.cboFigureType(0).setText(QString());
    write(project);
    EXPECT_EQ(sizeOf(u"Section 4"_s), (4 + 2) + 3 * EmptyText);
}

TEST_F(ProjectWriter_, stores_the_path_the_size_and_the_bytes_of_a_picture) {
    Project project;
    attachFigures(project, 2);
    write(project);
    Storage root = OpenStorageFile(file());
    Storage stored = root.OpenStorage(u"Pictures"_s, StorageMode::Exclusive);
    ASSERT_EQ(stored.Elements().Count(), 2);
    Stream stream = stored.OpenStream(u"Index 1"_s, StorageMode::Exclusive);
    EXPECT_EQ(std::get<QString>(stream.ReadData(FieldType::String)), inFolder(u"fig1.png"_s));
    EXPECT_EQ(std::get<qint32>(stream.ReadData(FieldType::Int32)), 9);
    QByteArray bytes;
    EXPECT_EQ(stream.ReadBuf(bytes, 9), 9);
    EXPECT_EQ(bytes, "picture 1");
}

TEST_F(ProjectWriter_, stores_the_working_copy_of_a_picture_whose_file_has_gone) {
    Project project;
    attachFigures(project, 1);
    ASSERT_TRUE(QFile::remove(inFolder(u"fig0.png"_s)));
    project.fields.figureState(0).workingCopy = makeFile(u"copy.png"_s, "the copy");
    write(project);
    Storage root = OpenStorageFile(file());
    Stream stream = root.OpenStorage(u"Pictures"_s, StorageMode::Exclusive)
                        .OpenStream(u"Index 0"_s, StorageMode::Exclusive);
    EXPECT_EQ(std::get<QString>(stream.ReadData(FieldType::String)), inFolder(u"copy.png"_s));
}

TEST_F(ProjectWriter_, stores_what_an_attached_file_holds_at_this_save) {
    Project project;
    attachFigures(project, 1);
    write(project);
    makeFile(u"fig0.png"_s, "drawn anew");
    write(project);
    Project opened;
    ASSERT_EQ(read(opened).outcome, ReadReport::Outcome::Read);
    EXPECT_EQ(contentOf(opened.fields.figureState(0).workingCopy), "drawn anew");
}

TEST_F(ProjectWriter_, leaves_the_streams_of_figures_that_have_gone) {
    Project project;
    attachFigures(project, 3);
    write(project);
    attachFigures(project, 1);
    write(project);
    Storage root = OpenStorageFile(file());
    EXPECT_EQ(root.OpenStorage(u"Pictures"_s, StorageMode::Exclusive).Elements().Count(), 3);
}

TEST_F(ProjectWriter_, leaves_the_old_tail_behind_a_shorter_section) {
    Project project;
    project.fields.cboMainElementNum.setText(u"5"_s);
    for (const FieldGroup group :
         {FieldGroup::MainElements, FieldGroup::SubElements, FieldGroup::Descriptions})
        project.fields.setPanelCount(group, 5);
    for (int i = 0; i < 5; ++i)
        project.fields.txtElementDes(i).setText(u"old"_s);
    write(project);
    const qint64 old = sizeOf(u"Section 5"_s);
    write(Project());
    EXPECT_EQ(sizeOf(u"Section 5"_s), old);
}

TEST_F(ProjectWriter_, keeps_the_last_texts_of_section_7_while_its_panels_wait_for_their_number) {
    for (const QString& number : {u"5"_s, u"1"_s, u"3"_s}) {
        Project project; // of three elements
        for (int i = 0; i < 3; ++i) {
            project.fields.txtElementSub9(i).setText(u"pin %1"_s.arg(i));
            project.fields.txtMainElementVariations(i).setText(u"bent %1"_s.arg(i));
        }
        project.fields.txtDesConnections.setText(u"joined"_s);
        project.fields.txtDesAlterative.setText(u"otherwise"_s);
        write(project);
        project.fields.cboMainElementNum.setText(number);
        project.fields.setPanelCount(FieldGroup::MainElements, number.toInt());
        write(project);
        Project opened;
        ASSERT_EQ(read(opened).outcome, ReadReport::Outcome::Read);
        EXPECT_EQ(opened.fields.txtDesConnections.text(), u"joined"_s) << qPrintable(number);
        EXPECT_EQ(opened.fields.txtDesAlterative.text(), u"otherwise"_s) << qPrintable(number);
        ASSERT_EQ(opened.fields.txtElementSub9.count(), number.toInt());
        for (int i = 0; i < number.toInt(); ++i) {
            const bool isOld = i < 3;
            EXPECT_EQ(opened.fields.txtElementSub9(i).text(),
                      isOld ? u"pin %1"_s.arg(i) : QString());
            EXPECT_EQ(opened.fields.txtMainElementVariations(i).text(),
                      isOld ? u"bent %1"_s.arg(i) : QString());
        }
    }
}

TEST_F(ProjectWriter_, changes_the_number_of_elements_and_what_it_counts_in_one_step) {
    Project project;
    project.fields.txtDesConnections.setText(u"joined"_s);
    write(project);
    const QString before = inFolder(u"before.ivd"_s);
    ASSERT_EQ(link(qPrintable(file()), qPrintable(before)), 0);
    project.fields.cboMainElementNum.setText(u"5"_s);
    project.fields.txtFileNo.setText(u"QF-1"_s);
    write(project);
    // What was the file is as it was: another one that was whole took its place.
    Project old;
    static_cast<void>(readProject(before, old));
    EXPECT_EQ(old.fields.cboMainElementNum.text(), u"3"_s);
    EXPECT_EQ(old.fields.txtDesConnections.text(), u"joined"_s);
    EXPECT_EQ(texts(u"Section 1"_s, 1), QStringList(u"QF-1"_s));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList({u"before.ivd"_s, u"project.ivd"_s, u"temp"_s}));
}

TEST_F(ProjectWriter_, writes_a_file_beside_which_none_can_be_made) {
    Project project;
    write(project);
    project.fields.cboMainElementNum.setText(u"5"_s);
    // The system's own user keeps its group below.
    constexpr auto Read = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup |
                          QFile::ReadOther | QFile::ExeOther;
    QFile::setPermissions(folder.path(), Read);
    QFile::setPermissions(file(), Read | QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther);
    // Nothing is forbidden to the system's own user.
    constexpr uid_t Nobody = 65534;
    const uid_t user = geteuid();
    ASSERT_TRUE(user != 0 || seteuid(Nobody) == 0);
    EXPECT_NO_THROW(write(project));
    ASSERT_TRUE(user != 0 || seteuid(user) == 0);
    QFile::setPermissions(folder.path(), Read | QFile::WriteOwner);
    Project opened;
    ASSERT_EQ(read(opened).outcome, ReadReport::Outcome::Read);
    EXPECT_EQ(opened.fields.cboMainElementNum.text(), u"5"_s);
}

TEST_F(ProjectWriter_, writes_a_file_whose_place_is_not_its_users_to_give) {
    Project project;
    write(project);
    project.fields.cboMainElementNum.setText(u"5"_s);
    // In a folder for everybody each file stays its owner's, and everybody may write into this one.
    constexpr mode_t Everybody = 0666;
    constexpr mode_t EverybodysFolder = 01777;
    ASSERT_EQ(chmod(qPrintable(file()), Everybody), 0);
    ASSERT_EQ(chmod(qPrintable(folder.path()), EverybodysFolder), 0);
    constexpr uid_t Nobody = 65534;
    const uid_t user = geteuid();
    ASSERT_TRUE(user != 0 || seteuid(Nobody) == 0);
    EXPECT_NO_THROW(write(project));
    ASSERT_TRUE(user != 0 || seteuid(user) == 0);
    EXPECT_EQ(QFileInfo(file()).ownerId(), user);
    Project opened;
    ASSERT_EQ(read(opened).outcome, ReadReport::Outcome::Read);
    EXPECT_EQ(opened.fields.cboMainElementNum.text(), u"5"_s);
}

TEST_F(ProjectWriter_, leaves_a_file_to_its_owner_also_where_another_could_take_its_place) {
    Project project;
    write(project);
    project.fields.cboMainElementNum.setText(u"5"_s);
    constexpr uid_t Nobody = 65534;
    const uid_t user = geteuid();
    if (user == 0) {
        ASSERT_EQ(chown(qPrintable(file()), Nobody, Nobody), 0);
    }
    const QFileInfo before(file());
    const uint owner = before.ownerId();
    const uint group = before.groupId();
    write(project);
    EXPECT_EQ(QFileInfo(file()).ownerId(), owner);
    EXPECT_EQ(QFileInfo(file()).groupId(), group);
    Project opened;
    ASSERT_EQ(read(opened).outcome, ReadReport::Outcome::Read);
    EXPECT_EQ(opened.fields.cboMainElementNum.text(), u"5"_s);
}

TEST_F(ProjectWriter_, takes_away_what_programs_that_were_killed_have_left_beside_it) {
    const auto leave = [this](const QString& name, const QString& content, int daysAgo) {
        writeFile(inFolder(name + u'/' + content), "half a project");
        const time_t then = time(nullptr) - daysAgo * 24 * 60 * 60 - 60;
        const timeval times[2]{{then, 0}, {then, 0}};
        EXPECT_EQ(utimes(qPrintable(inFolder(name)), times), 0);
    };
    leave(u".new-AbCdEf"_s, u"project.ivd"_s, 1);
    leave(u".new-GhIjKl"_s, u"project.ivd"_s, 0);
    leave(u".new-things"_s, u"of the user.txt"_s, 2);
    const Project project;
    ProjectWriter(project, prompts).writeNew(file(), ProjectWriter::Durability::Flushed);
    EXPECT_EQ(QDir(folder.path()).entryList({u".new*"_s}, QDir::AllEntries | QDir::Hidden),
              QStringList({u".new-GhIjKl"_s, u".new-things"_s}));
    EXPECT_TRUE(QFile::exists(inFolder(u".new-things/of the user.txt"_s)));
}

TEST_F(ProjectWriter_, follows_a_link_to_the_file_whose_number_of_elements_changes) {
    Project project;
    write(project);
    const QString real = inFolder(u"real.ivd"_s);
    ASSERT_TRUE(QFile::rename(file(), real) && QFile::link(real, file()));
    project.fields.cboMainElementNum.setText(u"5"_s);
    write(project);
    EXPECT_TRUE(QFileInfo(file()).isSymLink());
    Project opened;
    static_cast<void>(readProject(real, opened));
    EXPECT_EQ(opened.fields.cboMainElementNum.text(), u"5"_s);
}

TEST_F(ProjectWriter_, leaves_the_length_of_the_file_at_a_second_save) {
    Project project;
    attachFigures(project, 3);
    write(project);
    const qint64 size = QFileInfo(file()).size();
    write(project);
    EXPECT_EQ(QFileInfo(file()).size(), size);
}

TEST_F(ProjectWriter_, tells_of_a_picture_that_cannot_be_read_and_fails_at_its_count) {
    Project project;
    attachFigures(project, 1);
    ASSERT_TRUE(QFile::remove(inFolder(u"fig0.png"_s)));
    project.fields.figureState(0).workingCopy = inFolder(u"gone.png"_s);
    const Error error = errorOf([&] { write(project); });
    EXPECT_EQ(error.number(), 9);
    EXPECT_EQ(error.source(), inFolder(u"gone.png"_s));
    ASSERT_EQ(prompts.boxes.size(), 1U);
    EXPECT_EQ(prompts.boxes[0].title, QString());
    EXPECT_FALSE(prompts.boxes[0].text.isEmpty());
}

TEST_F(ProjectWriter_, fails_at_a_picture_of_no_bytes_with_everything_before_it_written) {
    Project project;
    attachFigures(project, 2);
    project.fields.txtOperation.setText(u"written"_s);
    makeFile(u"fig0.png"_s, {});
    EXPECT_EQ(errorOf([&] { write(project); }).number(), 9);
    EXPECT_TRUE(prompts.boxes.empty());
    EXPECT_EQ(texts(u"Section 8"_s, 1), QStringList{u"written"_s});
}

TEST_F(ProjectWriter_, raises_for_a_folder_that_is_not_there) {
    const Project project;
    ProjectWriter writer(project, prompts);
    const QString path = inFolder(u"no/such/project.ivd"_s);
    EXPECT_EQ(errorOf([&] { writer.write(path, ProjectWriter::Durability::OnDisk); }).number(),
              0x80030003);
    EXPECT_FALSE(QFileInfo::exists(path));
}

TEST_F(ProjectWriter_, a_new_file_takes_nothing_over_from_the_one_in_its_place) {
    Project project;
    attachFigures(project, 2);
    write(project);
    const Project small;
    ProjectWriter(small, prompts).writeNew(file(), ProjectWriter::Durability::OnDisk);
    Storage root = OpenStorageFile(file());
    EXPECT_EQ(root.OpenStorage(u"Pictures"_s, StorageMode::Exclusive).Elements().Count(), 0);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
              QStringList({u"fig0.png"_s, u"fig1.png"_s, u"project.ivd"_s, u"temp"_s}));
}

TEST_F(ProjectWriter_, a_new_file_takes_the_place_of_one_that_is_no_project) {
    makeFile(u"project.ivd"_s, "letters");
    const Project project;
    ProjectWriter(project, prompts).writeNew(file(), ProjectWriter::Durability::Flushed);
    EXPECT_EQ(texts(u"Section Version"_s, 1), QStringList({u"3.1"_s}));
}

TEST_F(ProjectWriter_, a_new_file_does_not_take_the_place_of_one_that_is_in_use) {
    const Project project;
    write(project);
    const QByteArray before = contentOf(file());
    const Storage elsewhere = OpenStorageFile(file());
    EXPECT_EQ(
        errorOf([&] {
            ProjectWriter(project, prompts).writeNew(file(), ProjectWriter::Durability::Flushed);
        }).description(),
        u"The file is in use.");
    EXPECT_EQ(contentOf(file()), before);
}

TEST_F(ProjectWriter_, a_new_file_that_fails_leaves_the_one_in_its_place) {
    makeFile(u"project.ivd"_s, "letters");
    Project project;
    attachFigures(project, 1);
    writeFile(project.fields.txtAttachFig(0).text());
    errorOf([&] {
        ProjectWriter(project, prompts).writeNew(file(), ProjectWriter::Durability::Flushed);
    });
    EXPECT_EQ(contentOf(file()), "letters");
    EXPECT_EQ(QDir(folder.path()).entryList({u".new*"_s}, QDir::AllEntries | QDir::Hidden).size(),
              0);
}
