#include "persistence/project/JsonReader.h"
#include "persistence/project/JsonWriter.h"
#include "support/ProjectMaker.h"

#include <gtest/gtest.h>
#include <string>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

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
