#include "editors/rules/FieldRulesFixture.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class ContactMirrorTest : public FieldRulesFixture {
protected:
    void check(bool answer) {
        prompts.yesNoAnswers.push_back(answer);
        fields.chkSameAsContact.setText(u"1"_s);
    }

    /// How many of the first inventor's nine fields were enabled or disabled, and nobody else's.
    [[nodiscard]] int calls(const std::string& enableOrDisable) const {
        int count = 0;
        for (const FieldRow& row : fieldTable())
            if (row.group == FieldGroup::Inventors)
                count += log.has(enableOrDisable + ' ' + row.name.toString().toStdString() + "(0)");
        return count;
    }

    void enterContact() {
        fields.txtNameStep1.setText(u" Ann "_s);
        fields.txtMIStep1.setText(u"B"_s);
        fields.txtLastStep1.setText(u"Carter"_s);
        fields.txtAddress1Step1.setText(u"1 Elm St "_s);
        fields.txtAddress2Step1.setText(u"Box 2"_s);
        fields.txtCityStep1.setText(u"Akron"_s);
        fields.cboStateStep1.setText(u"OH"_s);
        fields.txtZipStep1.setText(u" 44301"_s);
        fields.cboCountryStep1.setText(u"Great Britain "_s);
    }

    [[nodiscard]] QStringList firstInventor() const {
        QStringList texts;
        for (const FieldRow& row : fieldTable())
            if (row.group == FieldGroup::Inventors)
                texts.append(fields.at(row.id).text());
        return texts;
    }
};

} // namespace

TEST_F(ContactMirrorTest, checking_asks_in_these_words) {
    check(true);
    ASSERT_EQ(prompts.boxes.size(), 1U);
    EXPECT_EQ(prompts.boxes[0].title, u"Information"_s);
    EXPECT_EQ(prompts.boxes[0].text,
              u"Do you want Quillford 3.1 to use the information provided in section "
              u"1.Introduction for the First Inventor?"_s);
}

TEST_F(ContactMirrorTest, Yes_takes_the_contact_over_trimmed_but_for_lists) {
    enterContact();
    check(true);
    EXPECT_EQ(firstInventor(),
              QStringList({u"Ann"_s, u"B"_s, u"Carter"_s, u"1 Elm St"_s, u"Box 2"_s, u"Akron"_s,
                           u"OH"_s, u"44301"_s, u"Great Britain "_s}));
}

TEST_F(ContactMirrorTest, Yes_takes_texts_typed_into_lists_over_with_their_blanks) {
    fields.cboStateStep1.setText(u" Ohio "_s);
    fields.cboCountryStep1.setText(u"  "_s);
    check(true);
    EXPECT_EQ(fields.cboStateStep2(0).text(), u" Ohio "_s);
    EXPECT_EQ(fields.cboCitizenshipStep2(0).text(), u"  "_s);
}

TEST_F(ContactMirrorTest, Yes_disables_the_nine_fields) {
    check(true);
    EXPECT_EQ(calls("disable"), 9);
    EXPECT_EQ(calls("enable"), 0);
}

TEST_F(ContactMirrorTest, Yes_empties_what_the_contact_leaves_blank) {
    fields.txtNameStep2(0).setText(u"Ed"_s);
    fields.txtMIStep2(0).setText(u"F"_s);
    fields.txtMIStep1.setText(u"  "_s);
    fields.cboStateStep1.setText(u" "_s);
    check(true);
    EXPECT_EQ(fields.txtNameStep2(0).text(), QString());
    EXPECT_EQ(fields.txtMIStep2(0).text(), QString());
    EXPECT_EQ(fields.cboStateStep2(0).text(), QString());
}

TEST_F(ContactMirrorTest, without_a_city_the_zip_code_does_not_pass_over) {
    enterContact();
    fields.txtCityStep1.setText(u" "_s);
    fields.txtZipStep2(0).setText(u"99999"_s);
    check(true);
    EXPECT_EQ(fields.txtZipStep2(0).text(), QString());
    EXPECT_EQ(fields.txtZipStep1.text(), u" 44301"_s);
}

TEST_F(ContactMirrorTest, No_clears_the_box_and_leaves_the_fields_as_they_were) {
    enterContact();
    fields.txtNameStep2(0).setText(u"Ed"_s);
    const QStringList before = firstInventor();
    log.calls.clear();
    check(false);
    EXPECT_EQ(fields.chkSameAsContact.text(), u"0"_s);
    EXPECT_EQ(firstInventor(), before);
    EXPECT_EQ(calls("enable"), 9);
    EXPECT_EQ(calls("disable"), 0);
    EXPECT_EQ(prompts.boxes.size(), 1U);
}

TEST_F(ContactMirrorTest, each_keystroke_passes_over_with_its_blanks) {
    followContact();
    for (const QString& text : {u"N"_s, u"New "_s, u"New Y"_s, u" New York "_s, u""_s}) {
        fields.txtCityStep1.setText(text);
        EXPECT_EQ(fields.txtCityStep2(0).text(), text);
    }
}

TEST_F(ContactMirrorTest, every_pair_is_mirrored) {
    followContact();
    enterContact();
    steps.clicked({FieldId::cboStateStep1});
    EXPECT_EQ(firstInventor(),
              QStringList({u" Ann "_s, u"B"_s, u"Carter"_s, u"1 Elm St "_s, u"Box 2"_s, u"Akron"_s,
                           u"OH"_s, u" 44301"_s, u"Great Britain "_s}));
    EXPECT_EQ(fields.txtNameStep2(1).text(), QString());
}

TEST_F(ContactMirrorTest, a_state_passes_over_when_it_is_chosen_and_not_when_it_is_typed) {
    followContact();
    fields.cboStateStep1.setText(u"NY"_s);
    EXPECT_NE(fields.cboStateStep2(0).text(), u"NY"_s);
    steps.clicked({FieldId::cboStateStep1});
    EXPECT_EQ(fields.cboStateStep2(0).text(), u"NY"_s);
    EXPECT_TRUE(log.has("white cboStateStep2(0)"));
}

TEST_F(ContactMirrorTest, nothing_passes_over_while_the_box_is_clear) {
    const QStringList before = firstInventor();
    enterContact();
    steps.clicked({FieldId::cboStateStep1});
    steps.clicked({FieldId::cboCountryStep1});
    EXPECT_EQ(firstInventor(), before);
}

TEST_F(ContactMirrorTest, a_state_that_is_left_passes_over_although_the_box_is_clear) {
    fields.cboStateStep1.setText(u"NY"_s);
    steps.focusLost({FieldId::cboStateStep1});
    EXPECT_EQ(fields.cboStateStep2(0).text(), u"NY"_s);
}

TEST_F(ContactMirrorTest, another_contact_field_that_is_left_passes_nothing_over) {
    fields.txtCityStep1.setText(u"Akron"_s);
    steps.focusLost({FieldId::txtCityStep1});
    EXPECT_EQ(fields.txtCityStep2(0).text(), QString());
}

TEST_F(ContactMirrorTest, clearing_the_box_sets_the_fields_free_with_their_texts) {
    enterContact();
    followContact();
    fields.chkSameAsContact.setText(u"0"_s);
    EXPECT_EQ(calls("enable"), 9);
    EXPECT_EQ(fields.txtCityStep2(0).text(), u"Akron"_s);
    fields.txtCityStep1.setText(u"Dayton"_s);
    EXPECT_EQ(fields.txtCityStep2(0).text(), u"Akron"_s);
    EXPECT_EQ(prompts.boxes.size(), 0U);
}

TEST_F(ContactMirrorTest, clearing_the_box_numbers_the_inventors_behind_it) {
    fields.setPanelCount(FieldGroup::Inventors, 2);
    order.enterTab(1, fields);
    followContact();
    fields.chkSameAsContact.setText(u"0"_s);
    EXPECT_EQ(order.tabIndex(u"chkSameAsContact"_s), 12); // citizenship had 11
    EXPECT_EQ(order.tabIndex(u"txtNameStep2(0)"_s), 13);
    EXPECT_EQ(order.tabIndex(u"cboCitizenshipStep2(0)"_s), 21);
    EXPECT_EQ(order.tabIndex(u"txtNameStep2(1)"_s), 22);
    EXPECT_EQ(order.tabIndex(u"cboCitizenshipStep2(1)"_s), 30);
}

TEST_F(ContactMirrorTest, a_load_of_a_checked_box_asks_nothing_and_changes_nothing) {
    enterContact();
    const QStringList before = firstInventor();
    log.calls.clear();
    state.isLoading = true;
    fields.chkSameAsContact.loadText(u"1"_s);
    EXPECT_EQ(prompts.boxes.size(), 0U);
    EXPECT_EQ(firstInventor(), before);
    EXPECT_EQ(log.calls, Calls({"show chkSameAsContact"}));
}

TEST_F(ContactMirrorTest, after_a_load_the_mirror_runs_and_the_box_asks_again) {
    state.isLoading = true;
    fields.chkSameAsContact.loadText(u"1"_s);
    state.isLoading = false;
    fields.txtCityStep1.setText(u"Akron"_s);
    EXPECT_EQ(fields.txtCityStep2(0).text(), u"Akron"_s);
    fields.chkSameAsContact.setText(u"0"_s);
    check(true);
    EXPECT_EQ(prompts.boxes.size(), 1U);
}

TEST_F(ContactMirrorTest, a_state_that_loses_the_focus_to_a_command_is_not_passed_on) {
    fields.cboStateStep1.setText(u"CA"_s);
    fields.cboStateStep2(0).setText(u"NY"_s);
    {
        const CommandScope opening(state);
        steps.focusLost({FieldId::cboStateStep1});
        EXPECT_EQ(fields.cboStateStep2(0).text(), u"NY"_s);
    }
    steps.focusLost({FieldId::cboStateStep1});
    EXPECT_EQ(fields.cboStateStep2(0).text(), u"CA"_s);
}

TEST_F(ContactMirrorTest, a_mirrored_text_counts_as_changed) {
    followContact();
    fields.txtCityStep2(0).clearChanged();
    fields.txtCityStep1.setText(u"Akron"_s);
    EXPECT_TRUE(fields.txtCityStep2(0).isChanged());
}

TEST_F(ContactMirrorTest, a_citizenship_takes_a_country_that_its_list_lacks) {
    followContact();
    fields.cboCountryStep1.setText(u"India"_s);
    EXPECT_EQ(fields.cboCitizenshipStep2(0).text(), u"India"_s);
}
