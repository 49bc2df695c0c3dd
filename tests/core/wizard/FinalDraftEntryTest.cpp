#include "core/wizard/FinalDraftEntry.h"

#include "core/fields/SaveFlag.h"
#include "core/wizard/WizardFixture.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class FinalDraftEntryTest : public WizardFixture {
protected:
    /// A build that leaves the state as building does.
    QString visit() {
        return draft.switched([this] {
            ++builds;
            project.state.draftCurrent = canBuild;
            if (canBuild)
                project.state.saveFlag = false;
            return canBuild;
        });
    }

    void completeAllBut(std::initializer_list<int> sections) {
        for (int tab = 0; tab < SectionRules::SectionCount; ++tab) {
            if (std::find(sections.begin(), sections.end(), tab + 1) == sections.end())
                complete(tab);
            rules.validateSection(tab);
        }
        clearChangedMarks(project.fields);
        log.calls.clear();
    }

    static QString sentence(const QString& sections) {
        return u"<font size=4><span style=font-family:MS Sans Serif>Data is missing from "_s +
               sections +
               u". The Final Draft will be displayed after each section is complete."
               "</span></font>"_s;
    }

    FinalDraftEntry draft{project.fields, project.state, rules, screen.looks};
    bool canBuild = true;
    int builds = 0;
};

} // namespace

TEST_F(FinalDraftEntryTest, the_first_visit_builds_the_draft_and_enables_its_commands) {
    completeAllBut({});
    EXPECT_EQ(visit(), u"");
    EXPECT_EQ(builds, 1);
    EXPECT_EQ(calls(), Calls({"draft commands on"}));
}

TEST_F(FinalDraftEntryTest, a_second_visit_without_a_change_builds_nothing) {
    completeAllBut({});
    EXPECT_EQ(visit(), u"");
    EXPECT_EQ(visit(), u"");
    EXPECT_EQ(builds, 1);
    EXPECT_EQ(calls(), Calls({"draft commands on"}));
}

TEST_F(FinalDraftEntryTest, any_change_of_a_field_builds_the_draft_again) {
    completeAllBut({});
    EXPECT_EQ(visit(), u"");
    project.fields.txtEmailStep1.setText(u"ann@example.org"_s);
    EXPECT_EQ(visit(), u"");
    EXPECT_EQ(builds, 2);
}

TEST_F(FinalDraftEntryTest, a_build_that_fails_enables_nothing) {
    completeAllBut({});
    canBuild = false;
    EXPECT_EQ(visit(), u"");
    EXPECT_EQ(visit(), u"");
    EXPECT_EQ(builds, 2);
    EXPECT_EQ(calls(), Calls());
}

TEST_F(FinalDraftEntryTest, two_incomplete_sections_are_named_in_rising_order) {
    completeAllBut({5, 3});
    canBuild = false;
    EXPECT_EQ(visit(), sentence(u"Sections 3, 5"_s));
}

TEST_F(FinalDraftEntryTest, one_incomplete_section_is_named_in_the_singular) {
    completeAllBut({3});
    canBuild = false;
    EXPECT_EQ(visit(), sentence(u"Section 3"_s));
}

TEST_F(FinalDraftEntryTest, a_new_project_names_all_sections_until_they_are_checked) {
    canBuild = false;
    EXPECT_EQ(visit(), sentence(u"Sections 1, 2, 3, 4, 5, 6, 7, 8"_s));
    complete(7);
    EXPECT_EQ(visit(), sentence(u"Sections 1, 2, 3, 4, 5, 6, 7, 8"_s));
    rules.validateSection(7);
    EXPECT_EQ(visit(), sentence(u"Sections 1, 2, 3, 4, 5, 6, 7"_s));
}
