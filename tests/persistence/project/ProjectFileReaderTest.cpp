#include "persistence/project/ProjectFileReader.h"

#include "persistence/project/ProjectFileFixture.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class ProjectFileReader_ : public ProjectFileFixture {
protected:
    void writeVersion(const QString& version) {
        change([&](Storage& root) {
            root.CreateStream(u"Section Version"_s, StorageMode::Exclusive).WriteData(version);
        });
    }

    void setElements(Project& project, int count) {
        project.fields.cboMainElementNum.setText(QString::number(count));
        for (const FieldGroup group :
             {FieldGroup::MainElements, FieldGroup::SubElements, FieldGroup::Descriptions})
            project.fields.setPanelCount(group, count);
    }
};

using Outcome = ReadReport::Outcome;

} // namespace

TEST_F(ProjectFileReader_, gives_back_every_field_that_was_written) {
    Project project;
    setElements(project, 4);
    int number = 0;
    for (const FieldRow& row : fieldTable())
        for (int i = 0; row.kind != FieldKind::List && row.kind != FieldKind::Check &&
                        row.id != FieldId::txtAttachFig && i < project.fields.count(row.id);
             ++i)
            project.fields.at(row.id, i).setText(u"text %1"_s.arg(++number));
    project.fields.cboInventorsNum.setText(u"8"_s);
    project.fields.setPanelCount(FieldGroup::Inventors, 8);
    project.fields.chkSameAsContact.setText(u"1"_s);
    project.state.verifyPassed = true;
    write(project);

    Project opened;
    const ReadReport report = read(opened);
    ASSERT_EQ(report.outcome, Outcome::Read);
    EXPECT_EQ(report.version, u"3.1"_s);
    EXPECT_TRUE(report.missing.isEmpty());
    EXPECT_FALSE(report.failure.has_value());
    for (const FieldRow& row : fieldTable())
        for (int i = 0; i < project.fields.count(row.id); ++i)
            EXPECT_EQ(opened.fields.at(row.id, i).text(), project.fields.at(row.id, i).text())
                << row.name.toUtf8().constData() << ' ' << i;
    EXPECT_TRUE(opened.state.verifyPassed);
}

TEST_F(ProjectFileReader_, marks_no_field_as_changed) {
    Project project;
    project.fields.txtFileNo.setText(u"QF-1"_s);
    write(project);
    Project opened;
    read(opened);
    EXPECT_EQ(opened.fields.txtFileNo.text(), u"QF-1"_s);
    EXPECT_FALSE(opened.fields.txtFileNo.isChanged());
}

TEST_F(ProjectFileReader_, finds_no_project_in_a_missing_an_empty_and_a_foreign_file) {
    Project project;
    EXPECT_EQ(read(project).outcome, Outcome::NotFound);
    makeFile(u"project.ivd"_s, {});
    EXPECT_EQ(read(project).outcome, Outcome::NotFound);
    makeFile(u"project.ivd"_s, "no compound file");
    const ReadReport report = read(project);
    EXPECT_EQ(report.outcome, Outcome::NotFound);
    EXPECT_TRUE(report.failure.has_value());
    EXPECT_EQ(contentOf(file()), "no compound file");
}

TEST_F(ProjectFileReader_, finds_no_project_in_another_programs_document) {
    bool createProps = true;
    bool overwrite = false;
    CreateStorageFile(file(), createProps, true, overwrite)
        .CreateStream(u"WordDocument"_s, StorageMode::Exclusive)
        .WriteData(u"text"_s);
    Project project;
    const ReadReport report = read(project);
    EXPECT_EQ(report.outcome, Outcome::NotFound);
    EXPECT_EQ(report.missing, QStringList{u"Section Version"_s});
}

TEST_F(ProjectFileReader_, refuses_a_higher_version_and_touches_no_field) {
    Project written;
    written.fields.txtFileNo.setText(u"QF-1"_s);
    write(written);
    writeVersion(u"3.2"_s);
    Project project;
    const ReadReport report = read(project);
    EXPECT_EQ(report.outcome, Outcome::HigherVersion);
    EXPECT_EQ(report.version, u"3.2"_s);
    EXPECT_EQ(project.fields.txtFileNo.text(), QString());
}

TEST_F(ProjectFileReader_, refuses_a_version_that_is_no_number) {
    write(Project());
    Project project;
    for (const QString& version : {u"new"_s, u"nan"_s, u"inf"_s, u" "_s, u"3,1"_s, u"3.1b"_s}) {
        change([](Storage& root) { root.DestroyElement(u"Section Version"_s); });
        writeVersion(version);
        EXPECT_EQ(read(project).outcome, Outcome::HigherVersion) << qPrintable(version);
    }
}

TEST_F(ProjectFileReader_, compares_versions_as_numbers) {
    write(Project());
    Project project;
    for (const QString& version : {u"3.10"_s, u"3.0"_s, u"3"_s, u"0.5"_s, u" 3.1 "_s}) {
        writeVersion(version);
        EXPECT_EQ(read(project).outcome, Outcome::Read) << qPrintable(version);
    }
    for (const QString& version : {u"3.11"_s, u"3.2"_s, u"4"_s, u"31"_s}) {
        writeVersion(version);
        EXPECT_EQ(read(project).outcome, Outcome::HigherVersion) << qPrintable(version);
    }
}

TEST_F(ProjectFileReader_, never_sees_the_old_tail_of_a_section) {
    Project older;
    setElements(older, 5);
    for (int i = 0; i < 5; ++i) {
        older.fields.txtElementName(i).setText(u"old name %1"_s.arg(i));
        older.fields.txtMainElementNameDetail(i).setText(u"old detail"_s);
    }
    write(older);
    Project project;
    setElements(project, 2);
    project.fields.txtElementName(1).setText(u"new"_s);
    project.fields.txtDesConnections.setText(u"connected"_s);
    write(project);

    Project opened;
    ASSERT_EQ(read(opened).outcome, Outcome::Read);
    EXPECT_EQ(opened.fields.panelCount(FieldGroup::MainElements), 2);
    EXPECT_EQ(opened.fields.panelCount(FieldGroup::SubElements), 2);
    EXPECT_EQ(opened.fields.panelCount(FieldGroup::Descriptions), 2);
    EXPECT_EQ(opened.fields.txtElementName(0).text(), QString());
    EXPECT_EQ(opened.fields.txtElementName(1).text(), u"new"_s);
    EXPECT_EQ(opened.fields.txtDesConnections.text(), u"connected"_s);
}

TEST_F(ProjectFileReader_, keeps_a_state_and_a_country_for_which_an_empty_text_is_stored) {
    Project project;
    project.fields.cboStateStep1.setText(u"  "_s);
    project.fields.cboCountryStep1.setText(QString());
    project.fields.cboStateStep2(0).setText(QString());
    write(project);
    Project opened;
    opened.fields.cboStateStep1.setText(u"CO"_s);
    read(opened);
    EXPECT_EQ(opened.fields.cboStateStep1.text(), u"CO"_s);
    EXPECT_EQ(opened.fields.cboCountryStep1.text(), u"United States"_s);
    EXPECT_EQ(opened.fields.cboStateStep2(0).text(), QString());
}

TEST_F(ProjectFileReader_, keeps_a_count_that_is_empty_or_not_offered) {
    for (const QString& count : {QString(), u"21"_s, u"0"_s, u"-1"_s, u"2000000000"_s, u"two"_s}) {
        Project project;
        project.fields.cboObjectNum.setText(count);
        write(project);
        Project opened;
        ASSERT_EQ(read(opened).outcome, Outcome::Read);
        EXPECT_EQ(opened.fields.cboObjectNum.text(), u"4"_s) << qPrintable(count);
        EXPECT_EQ(opened.fields.panelCount(FieldGroup::Objects), 4);
    }
}

TEST_F(ProjectFileReader_, reads_any_state_of_the_check_box_but_zero_as_checked) {
    Project project;
    project.fields.chkSameAsContact.setText(u"2"_s);
    write(project);
    Project opened;
    read(opened);
    EXPECT_EQ(opened.fields.chkSameAsContact.text(), u"1"_s);
}

TEST_F(ProjectFileReader_, leaves_the_figure_of_a_project_without_figures_unread) {
    Project project;
    project.fields.cboFiguresNum.setText(u"0"_s);
    project.fields.setPanelCount(FieldGroup::Figures, 0);
    project.fields.txtFigureDetail(0).setText(u"unread"_s);
    write(project);
    Project opened;
    read(opened);
    EXPECT_EQ(opened.fields.cboFiguresNum.text(), u"0"_s);
    EXPECT_EQ(opened.fields.txtFigureDetail(0).text(), QString());
}

TEST_F(ProjectFileReader_, reads_empty_texts_for_a_missing_stream_from_the_one_before) {
    Project project;
    project.fields.txtPurpose.setText(u"purpose"_s);
    project.fields.txtMainElement.setText(u"elements"_s);
    project.fields.txtOperation.setText(u"operation"_s);
    write(project);
    change([](Storage& root) { root.DestroyElement(u"Section 5"_s); });
    Project opened;
    opened.fields.txtMainElement.setText(u"what stood there"_s);
    const ReadReport report = read(opened);
    EXPECT_EQ(report.outcome, Outcome::Read);
    EXPECT_EQ(report.missing, QStringList{u"Section 5"_s});
    EXPECT_EQ(opened.fields.txtPurpose.text(), u"purpose"_s);
    EXPECT_EQ(opened.fields.txtMainElement.text(), QString());
    EXPECT_EQ(opened.fields.cboMainElementNum.text(), u"3"_s);
    EXPECT_EQ(opened.fields.txtOperation.text(), u"operation"_s);
}

TEST_F(ProjectFileReader_, reads_a_missing_stream_from_the_old_tail_of_the_one_before) {
    Project older;
    older.fields.txtOperation.setText(u"operation"_s);
    write(older);
    change([](Storage& root) {
        Stream tail = root.OpenStream(u"Section 7"_s, StorageMode::Exclusive);
        tail.SSeek(tail.Stat().Size());
        tail.WriteData(u"left over"_s);
        root.DestroyElement(u"Section 8"_s);
    });
    Project opened;
    read(opened);
    EXPECT_EQ(opened.fields.txtOperation.text(), u"left over"_s);
}

TEST_F(ProjectFileReader_, reads_empty_texts_behind_the_place_where_a_stream_is_cut) {
    Project project;
    project.fields.txtFileNo.setText(u"QF-1"_s);
    project.fields.txtInventionTitle.setText(u"Easel"_s);
    project.fields.txtEmailStep1.setText(u"a@example.com"_s);
    write(project);
    change([](Storage& root) {
        root.OpenStream(u"Section 1"_s, StorageMode::Exclusive).SetSize(4 + 8 + 4 + 2);
    });
    Project opened;
    opened.fields.txtEmailStep1.setText(u"old"_s);
    const ReadReport report = read(opened);
    EXPECT_EQ(report.outcome, Outcome::Read);
    EXPECT_EQ(opened.fields.txtFileNo.text(), u"QF-1"_s);
    EXPECT_EQ(opened.fields.txtInventionTitle.text(), QString(u"E\0\0\0\0"_s));
    EXPECT_EQ(opened.fields.txtEmailStep1.text(), QString());
    EXPECT_EQ(opened.fields.cboStateStep1.text(), u"AK"_s);
}

TEST_F(ProjectFileReader_, keeps_a_field_whose_stored_length_no_memory_holds) {
    Project project;
    project.fields.txtOperation.setText(u"operation"_s);
    write(project);
    change([](Storage& root) {
        root.OpenStream(u"Section 8"_s, StorageMode::Exclusive).WriteData(qint32{0x7fffffff});
    });
    Project opened;
    opened.fields.txtOperation.setText(u"what stood there"_s);
    const ReadReport report = read(opened);
    EXPECT_EQ(report.outcome, Outcome::Read);
    EXPECT_TRUE(report.failure.has_value());
    EXPECT_EQ(opened.fields.txtOperation.text(), u"what stood there"_s);
}

TEST_F(ProjectFileReader_, reads_the_verified_flag_as_a_boolean) {
    const std::pair<QString, bool> cases[] = {{u"True"_s, true},   {u"true"_s, true},
                                              {u"False"_s, false}, {u"-1"_s, true},
                                              {u"0"_s, false},     {u"perhaps"_s, true}};
    for (const auto& [text, expected] : cases) {
        write(Project());
        change([&text](Storage& root) {
            root.DestroyElement(u"Section Verify"_s);
            root.CreateStream(u"Section Verify"_s, StorageMode::Exclusive).WriteData(text);
        });
        Project opened;
        opened.state.verifyPassed = text == u"perhaps"; // what is no boolean changes nothing
        read(opened);
        EXPECT_EQ(opened.state.verifyPassed, expected) << qPrintable(text);
    }
}

TEST_F(ProjectFileReader_, opens_no_stream_of_a_figure_that_has_gone) {
    Project project;
    attachFigures(project, 3);
    write(project);
    attachFigures(project, 1);
    write(project);
    Project opened;
    ASSERT_EQ(read(opened).outcome, Outcome::Read);
    EXPECT_EQ(opened.fields.panelCount(FieldGroup::Figures), 1);
    EXPECT_EQ(pictures.asked, QStringList{folders.temporary + u"/fig0.png"_s});
}

TEST_F(ProjectFileReader_, tells_of_a_picture_that_is_missing) {
    Project project;
    attachFigures(project, 2);
    write(project);
    change([](Storage& root) {
        root.OpenStorage(u"Pictures"_s, StorageMode::Exclusive).DestroyElement(u"Index 0"_s);
    });
    Project opened;
    const ReadReport report = read(opened);
    EXPECT_EQ(report.missing, QStringList{u"Pictures/Index 0"_s});
    EXPECT_EQ(opened.fields.figureState(0).workingCopy, QString());
    EXPECT_EQ(contentOf(opened.fields.figureState(1).workingCopy), "picture 1");
}

TEST_F(ProjectFileReader_, makes_nothing_of_a_picture_that_claims_more_bytes_than_there_are) {
    Project project;
    attachFigures(project, 1);
    write(project);
    change([&](Storage& root) {
        Stream stream = root.OpenStorage(u"Pictures"_s, StorageMode::Exclusive)
                            .OpenStream(u"Index 0"_s, StorageMode::Exclusive);
        stream.WriteData(inFolder(u"fig0.png"_s));
        stream.WriteData(qint32{0x7fffffff});
    });
    Project opened;
    const ReadReport report = read(opened);
    EXPECT_EQ(report.outcome, Outcome::Read);
    EXPECT_TRUE(report.failure.has_value());
    EXPECT_EQ(opened.fields.figureState(0).workingCopy, QString());
}

TEST_F(ProjectFileReader_, reads_nothing_of_a_file_that_is_open_elsewhere) {
    write(Project());
    const Storage elsewhere = OpenStorageFile(file());
    Project project;
    const ReadReport report = read(project);
    EXPECT_EQ(report.outcome, Outcome::NotFound);
    ASSERT_TRUE(report.failure.has_value());
    EXPECT_EQ(report.failure->number(), 0x80030020);
}
