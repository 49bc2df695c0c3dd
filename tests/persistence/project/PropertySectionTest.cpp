#include "persistence/project/PropertySection.h"

#include "PropertySetTesting.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

PropertySection onlySection(const QString& name) {
    return readSet(seed(name)).sections.at(0);
}

PropertySection user() {
    return readSet(seed(u"document-and-user"_s)).sections.at(1);
}

} // namespace

TEST(PropertySection, tells_the_code_page_of_its_texts) {
    EXPECT_EQ(onlySection(u"summary"_s).codePage().number(), 1252);
    EXPECT_EQ(onlySection(u"utf-8"_s).codePage().number(), 65001) << "stored as a negative number";
    EXPECT_EQ(onlySection(u"wide-names"_s).codePage().number(), 1200);
    EXPECT_EQ(onlySection(u"no-code-page"_s).codePage().number(), 1252);
    EXPECT_EQ(PropertySection::empty(summaryFormat()).codePage().number(), 1200);
}

TEST(PropertySection, gives_values_by_identifier) {
    const PropertySection section = onlySection(u"summary"_s);
    EXPECT_EQ(section.value(2), PropertyValue(u"A title"_s));
    EXPECT_EQ(section.value(14), PropertyValue(qint32{7}));
    EXPECT_EQ(section.value(1), PropertyValue(qint16{1252}));
    EXPECT_EQ(onlySection(u"utf-8"_s).value(2), PropertyValue(u"Caf\u00e9 \u4e2d"_s));
}

TEST(PropertySection, gives_an_empty_value_for_what_is_not_there_and_for_the_dictionary) {
    EXPECT_EQ(onlySection(u"summary"_s).value(9), PropertyValue());
    EXPECT_EQ(user().value(0), PropertyValue());
}

TEST(PropertySection, tells_its_properties_but_not_those_about_itself) {
    const std::vector<PropertyInfo> expected = {{2, u"Client"_s, 31}, {3, u"Checked"_s, 11}};
    EXPECT_EQ(user().properties(), expected);
}

TEST(PropertySection, changes_a_value_in_its_place_and_adds_a_new_one_at_the_end) {
    PropertySection section = onlySection(u"summary"_s);
    const auto before = section.stored();
    section.setValue(4, u"Bea"_s);
    section.setValue(18, u"Quillford"_s);
    ASSERT_EQ(section.stored().size(), before.size() + 1);
    for (std::size_t i = 0; i < before.size(); ++i) {
        EXPECT_EQ(section.stored()[i].identifier, before[i].identifier);
        EXPECT_EQ(section.stored()[i].bytes != before[i].bytes, before[i].identifier == 4);
    }
    EXPECT_EQ(section.value(4), PropertyValue(u"Bea"_s));
    EXPECT_EQ(section.stored().back().identifier, 18U);
}

TEST(PropertySection, does_not_let_its_own_description_be_changed) {
    PropertySection section = onlySection(u"summary"_s);
    for (const quint32 identifier : {0U, 1U, 0x80000000U, 0x80000003U, 0xFFFFFFFFU})
        EXPECT_EQ(numberOfError([&] { section.setValue(identifier, qint32{1}); }),
                  numberOf(StorageCode::InvalidParameter));
}

TEST(PropertySection, gives_a_new_name_the_lowest_identifier_that_nothing_has) {
    PropertySection section = user();
    EXPECT_EQ(section.addName(u"Third"_s), 4U);
    EXPECT_EQ(section.identifierOf(u"third"_s), 4U);
    EXPECT_EQ(section.addName(u"Fourth"_s), 5U) << "the name alone takes the identifier";
    EXPECT_EQ(section.identifierOf(u"Client"_s), 2U);
}

TEST(PropertySection, begins_a_dictionary_where_there_is_none) {
    PropertySection section = PropertySection::empty(userFormat());
    section.setValue(section.addName(u"\u4e2d"_s), true);
    EXPECT_EQ(section.value(2), PropertyValue(true));
    EXPECT_EQ(section.properties(), (std::vector<PropertyInfo>{{2, u"\u4e2d"_s, 11}}));
}
