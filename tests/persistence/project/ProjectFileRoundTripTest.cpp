#include "base/Text.h"
#include "core/fields/FieldLists.h"
#include "persistence/project/ProjectFileFixture.h"
#include "persistence/project/ProjectReader.h"
#include "support/ProjectMaker.h"

#include <QMap>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Keeps the stored pictures as they come.
class Album final : public PictureReceiver {
public:
    void takePicture(int figure, const QString& path, const QByteArray& bytes) override {
        paths.insert(figure, path);
        contents.insert(figure, bytes);
    }

    QMap<int, QString> paths;
    QMap<int, QByteArray> contents;
};

/// The fields that keep the blanks at their ends, one by one.
bool isWrittenAsIs(FieldId id) {
    return id == FieldId::cboInventorsNum || id == FieldId::cboObjectNum ||
           id == FieldId::cboFiguresNum || id == FieldId::cboMainElementNum ||
           id == FieldId::cboStateStep2;
}

class ProjectFileRoundTrip : public ProjectFileFixture {
protected:
    /// What a field should hold after it was written from one text and read over another.
    static QString expected(FieldId id, const QString& written, const QString& before) {
        const QString stored = isWrittenAsIs(id) ? written : trimBlanks(written).toString();
        const bool keeps = id == FieldId::cboStateStep1 || id == FieldId::cboCountryStep1;
        return keeps && stored.isEmpty() ? before : stored;
    }

    /// Gives every attached figure the one working copy, since at its path there is no file.
    void giveCopies(Project& project) const {
        for (int i = 0; i < project.fields.panelCount(FieldGroup::Figures); ++i)
            project.fields.figureState(i).workingCopy = copy;
    }

    static int shown(const ProjectFields& fields, const FieldRow& row) {
        return row.group == FieldGroup::Single ? 1
                                               : fields.at(groupLimits(row.group).count).number();
    }

    static void expectFieldsBack(const Project& written, const Project& opened) {
        const Project fresh;
        EXPECT_EQ(opened.state.verifyPassed, written.state.verifyPassed);
        for (const FieldRow& row : fieldTable()) {
            ASSERT_EQ(opened.fields.count(row.id), written.fields.count(row.id));
            for (int i = 0; i < shown(written.fields, row); ++i) {
                const QString before =
                    row.group == FieldGroup::Single ? fresh.fields.at(row.id).text() : QString();
                const bool same = opened.fields.at(row.id, i).text() ==
                                  expected(row.id, written.fields.at(row.id, i).text(), before);
                ASSERT_TRUE(same) << qPrintable(row.name.toString()) << ' ' << i;
            }
        }
    }

    void expectPicturesBack(const Project& written, const Album& album) const {
        const ProjectFields& fields = written.fields;
        for (int i = 0; i < shown(fields, fields.txtAttachFig.row()); ++i) {
            ASSERT_EQ(album.paths.contains(i), fields.txtAttachFig(i).isFilled()) << i;
            if (album.paths.contains(i)) {
                ASSERT_EQ(album.paths[i], copy);
                ASSERT_EQ(album.contents[i], "the picture's bytes");
            }
        }
    }

    void expectSampleBack(const QString& sample) {
        Project project;
        readProject(QStringLiteral(QUILLFORD_SOURCE_DIR "/samples/") + sample, project);
        write(project);
        Project opened;
        const ReadReport report = read(opened);
        EXPECT_EQ(report.outcome, ReadReport::Outcome::Read);
        EXPECT_TRUE(report.missing.isEmpty());
        EXPECT_FALSE(report.failure.has_value());
        expectFieldsBack(project, opened);
        for (int i = 0; i < project.fields.cboFiguresNum.number(); ++i) {
            const QString path = project.fields.txtAttachFig(i).text();
            const QString stored = opened.fields.figureState(i).workingCopy;
            EXPECT_EQ(path.isEmpty(), stored.isEmpty());
            if (!path.isEmpty()) {
                EXPECT_TRUE(contentOf(path) == contentOf(stored)) << qPrintable(path);
            }
        }
    }

    QString copy = makeFile(u"copy.png"_s, "the picture's bytes");
};

} // namespace

TEST_F(ProjectFileRoundTrip, keeps_a_thousand_projects_but_for_the_blanks_at_their_ends) {
    int pictureCount = 0;
    for (unsigned seed = 0; seed < 1000; ++seed) {
        SCOPED_TRACE(seed);
        Project made;
        ProjectMaker(seed).fill(made);
        giveCopies(made);
        // Each second project is saved over the one before it.
        if (seed % 2 == 0)
            QFile::remove(file());
        write(made);
        Project opened;
        Album album;
        const ReadReport report = ProjectFileReader(opened, album).read(file());
        ASSERT_EQ(report.outcome, ReadReport::Outcome::Read);
        ASSERT_FALSE(report.failure.has_value());
        expectFieldsBack(made, opened);
        expectPicturesBack(made, album);
        ASSERT_FALSE(HasFailure());
        pictureCount += static_cast<int>(album.paths.size());
    }
    EXPECT_GT(pictureCount, 10000);
}

TEST_F(ProjectFileRoundTrip, gives_each_count_back) {
    for (const FieldId id : {FieldId::cboInventorsNum, FieldId::cboObjectNum,
                             FieldId::cboFiguresNum, FieldId::cboMainElementNum}) {
        for (const QString& count : listRows(fieldRow(id).list)) {
            Project project;
            project.fields.at(id).setText(count);
            for (const FieldGroup group : RepeatingGroups)
                if (groupLimits(group).count == id)
                    project.fields.setPanelCount(group, count.toInt());
            write(project);
            Project opened;
            read(opened);
            EXPECT_EQ(opened.fields.at(id).text(), count);
            expectFieldsBack(project, opened);
        }
    }
}

TEST_F(ProjectFileRoundTrip, keeps_what_stood_there_for_an_empty_count_state_and_country) {
    const FieldId kept[] = {FieldId::cboInventorsNum, FieldId::cboObjectNum,
                            FieldId::cboFiguresNum,   FieldId::cboMainElementNum,
                            FieldId::cboStateStep1,   FieldId::cboCountryStep1};
    Project written;
    for (const FieldId id : kept)
        written.fields.at(id).setText(QString());
    write(written);
    Project opened;
    for (const FieldId id : kept)
        opened.fields.at(id).setText(u"2"_s);
    ASSERT_EQ(read(opened).outcome, ReadReport::Outcome::Read);
    for (const FieldId id : kept)
        EXPECT_EQ(opened.fields.at(id).text(), u"2"_s) << qPrintable(fieldRow(id).name.toString());
    for (const FieldGroup group : RepeatingGroups)
        EXPECT_EQ(opened.fields.panelCount(group), 2) << static_cast<int>(group);
}

TEST_F(ProjectFileRoundTrip, keeps_the_sample_without_pictures) {
    expectSampleBack(u"pencil-clip/pencil-clip.json"_s);
}

TEST_F(ProjectFileRoundTrip, keeps_the_sample_with_its_pictures) {
    expectSampleBack(u"folding-easel/folding-easel.json"_s);
}
