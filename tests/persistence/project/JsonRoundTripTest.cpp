#include "core/fields/FieldLists.h"
#include "persistence/project/JsonReader.h"
#include "persistence/project/JsonWriter.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <random>
#include <string>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Makes projects by chance; the same seed makes the same project.
class ProjectMaker {
public:
    explicit ProjectMaker(unsigned seed) : chance_(seed) {}

    void fill(Project& project) {
        project.state.verifyPassed = below(2) == 1;
        for (const FieldRow& row : fieldTable())
            for (int i = 0; i < shown(project.fields, row); ++i)
                project.fields.at(row.id, i).loadText(text(row));
        for (const FieldGroup group : RepeatingGroups)
            project.fields.setPanelCount(group,
                                         project.fields.at(groupLimits(group).count).number());
    }

private:
    int below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(chance_); }

    /// The table tells a count before what it counts, so that the panels can be made on the way.
    static int shown(ProjectFields& fields, const FieldRow& row) {
        if (row.group == FieldGroup::Single)
            return 1;
        const int count = fields.at(groupLimits(row.group).count).number();
        if (fields.panelCount(row.group) != count)
            fields.setPanelCount(row.group, count);
        return count;
    }

    QString text(const FieldRow& row) {
        if (row.kind == FieldKind::Check)
            return QString::number(below(2));
        if (row.kind == FieldKind::List)
            return listRows(row.list).at(below(static_cast<int>(listRows(row.list).size())));
        const QString typed = anyText();
        return row.id == FieldId::txtAttachFig ? u"/figures/"_s + typed : typed;
    }

    QString anyText() {
        static const QStringList pieces{u"easel"_s,
                                        u" "_s,
                                        u"\r\n"_s,
                                        u"\n"_s,
                                        u"\t"_s,
                                        u"\""_s,
                                        u"\\"_s,
                                        u"\u00E9"_s,
                                        u"%1"_s,
                                        u"\U0001F58A"_s,
                                        u"\u0001"_s,
                                        QString(QChar(0xD834)),
                                        QString(QChar(0xDD1E)),
                                        QString(QChar(0)),
                                        u"\uFEFF"_s,
                                        u"\u2028"_s,
                                        u"\uFFFF"_s,
                                        u"</b>"_s,
                                        u"\u007F"_s,
                                        u"\u009B"_s};
        QString text;
        for (int i = below(12); i > 0; --i)
            text += pieces.at(below(static_cast<int>(pieces.size())));
        return text;
    }

    std::mt19937 chance_;
};

/// The text's code units, so that a difference can be read.
std::string escaped(const Field& field) {
    std::string units;
    for (const QChar unit : field.text())
        units += unit > u' ' && unit < u'\x7F' ? std::string(1, unit.toLatin1())
                                               : '<' + std::to_string(unit.unicode()) + '>';
    return units;
}

void expectEqual(const Project& left, const Project& right, unsigned seed) {
    EXPECT_EQ(left.state.verifyPassed, right.state.verifyPassed);
    for (const FieldRow& row : fieldTable()) {
        const bool repeated = row.group != FieldGroup::Single;
        const int shown = repeated ? left.fields.at(groupLimits(row.group).count).number() : 1;
        ASSERT_EQ(left.fields.count(row.id), right.fields.count(row.id));
        for (int i = 0; i < shown; ++i)
            ASSERT_EQ(escaped(left.fields.at(row.id, i)), escaped(right.fields.at(row.id, i)))
                << "seed " << seed << ", " << row.name.toUtf8().toStdString();
    }
}

} // namespace

TEST(JsonRoundTrip, keeps_a_thousand_projects_and_their_form) {
    for (unsigned seed = 0; seed < 1000; ++seed) {
        Project made;
        ProjectMaker(seed).fill(made);
        const QByteArray json = writeProjectJson(made);
        Project read;
        readProjectJson(json, u"/nowhere"_s, read);
        expectEqual(made, read, seed);
        ASSERT_TRUE(writeProjectJson(read) == json) << "seed " << seed;
    }
}

TEST(JsonRoundTrip, keeps_a_new_project) {
    const QByteArray json = writeProjectJson(Project());
    Project read;
    readProjectJson(json, u"/nowhere"_s, read);
    EXPECT_EQ(writeProjectJson(read), json);
}

TEST(JsonRoundTrip, keeps_a_megabyte_of_every_character_of_the_basic_plane) {
    QString text;
    while (text.size() < 1024 * 1024)
        text += QChar(static_cast<char16_t>(text.size()));
    Project made;
    made.fields.txtOperation.setText(text);
    Project read;
    readProjectJson(writeProjectJson(made), u"/nowhere"_s, read);
    EXPECT_TRUE(read.fields.txtOperation.text() == text);
}
