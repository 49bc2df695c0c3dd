#include "persistence/project/PropertySetReader.h"

#include "PropertySetExercise.h"
#include "PropertySetTesting.h"
#include "persistence/compound/EmptyPropertySet.h"
#include "persistence/project/PropertySetWriter.h"

#include <array>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

TEST(PropertySetReader, reads_a_stream_of_one_section) {
    PropertySet set = readSet(seed(u"summary"_s));
    EXPECT_EQ(set.version, 0);
    EXPECT_EQ(set.system, 0x20006U);
    EXPECT_TRUE(set.classId.isNull());
    ASSERT_EQ(set.sections.size(), 1U);
    ASSERT_NE(set.find(summaryFormat()), nullptr);
    EXPECT_EQ(set.find(summaryFormat())->stored().size(), 7U);
    EXPECT_EQ(set.find(userFormat()), nullptr);
}

TEST(PropertySetReader, reads_a_stream_of_two_sections) {
    PropertySet set = readSet(seed(u"document-and-user"_s));
    ASSERT_EQ(set.sections.size(), 2U);
    EXPECT_EQ(set.find(documentFormat())->value(15), PropertyValue(u"Ox & Co"_s));
    EXPECT_EQ(set.find(userFormat())->value(2), PropertyValue(u"Nib\u00e9 Ltd"_s));
}

TEST(PropertySetReader, reads_the_sets_of_a_new_project_file) {
    const std::array formats = {documentFormat(), userFormat()};
    for (const bool ansi : {false, true}) {
        const PropertySet set = readSet(emptyPropertySet(formats, ansi));
        ASSERT_EQ(set.sections.size(), 2U);
        EXPECT_EQ(set.sections[1].codePage().number(), ansi ? 1252 : 1200);
        EXPECT_TRUE(set.sections[1].properties().empty());
    }
}

TEST(PropertySetReader, reads_a_section_that_says_up_to_three_bytes_more_than_there_are) {
    const QByteArray whole = seed(u"three-bytes-short"_s) + QByteArray(3, '\0');
    for (int missing = 0; missing <= 3; ++missing)
        EXPECT_EQ(readSet(whole.chopped(missing)).sections[0].value(2), PropertyValue(u"Four"_s));
    EXPECT_EQ(numberOfError([&] { (void)readSet(whole.chopped(4)); }),
              numberOf(StorageCode::DocumentCorrupt));
}

TEST(PropertySetReader, reads_bytes_behind_the_last_section_as_nothing) {
    EXPECT_EQ(readSet(seed(u"summary"_s) + QByteArray(1000, 'x')).sections[0].value(4),
              PropertyValue(u"Ann Ox"_s));
}

TEST(PropertySetReader, reads_values_in_any_order) {
    QByteArray bytes = seed(u"summary"_s);
    // The places of the second and the fourth property change with each other, their identifiers
    // stay.
    const QByteArray second = bytes.mid(68, 4);
    bytes.replace(68, 4, bytes.mid(84, 4)).replace(84, 4, second);
    const PropertySection section = readSet(bytes).sections[0];
    EXPECT_TRUE(std::holds_alternative<FileTime>(section.value(2)));
    EXPECT_EQ(section.value(10), PropertyValue(u"A title"_s));
}

TEST(PropertySetReader, refuses_a_damaged_stream_by_the_fault_in_its_name) {
    const QDir folder = streamsIn(u"regressions"_s);
    int refused = 0;
    for (const QString& name : folder.entryList(QDir::Files)) {
        if (name.startsWith(u"value"))
            continue;
        const QByteArray bytes = contentOfFile(folder.filePath(name));
        const auto error = errorOf([&] { (void)readSet(bytes); });
        ASSERT_TRUE(error) << name.toStdString();
        const QString fault = name.section(u"--"_s, 0, 0).replace(u'-', u' ');
        EXPECT_EQ(error->description(), u"The property set is damaged: "_s + fault + u'.')
            << name.toStdString();
        EXPECT_EQ(error->number(), numberOf(StorageCode::DocumentCorrupt));
        EXPECT_GE(error->offset(), 0);
        ++refused;
    }
    EXPECT_EQ(refused, 23);
}

TEST(PropertySetReader, keeps_the_other_values_of_a_set_with_a_damaged_one) {
    const QDir folder = streamsIn(u"regressions"_s);
    int read = 0;
    int withAnother = 0;
    for (const QString& name : folder.entryList({u"value-*"_s}, QDir::Files)) {
        const QByteArray bytes = contentOfFile(folder.filePath(name));
        EXPECT_TRUE(exercisePropertySet(propertyset::bytesOf(bytes))) << name.toStdString();
        PropertySet set = readSet(bytes);
        const PropertySection& first = set.sections.at(0);
        if (first.value(3) != PropertyValue()) {
            EXPECT_EQ(first.value(3), PropertyValue(u"Subject"_s)) << name.toStdString();
            ++withAnother;
        }
        ++read;
    }
    EXPECT_EQ(read, 16);
    EXPECT_EQ(withAnother, 8);
}

TEST(PropertySetReader, gives_the_first_of_two_values_of_one_identifier) {
    const QString name = u"value-two-of-one-identifier"_s;
    const PropertySet set = readSet(contentOfFile(streamsIn(u"regressions"_s).filePath(name)));
    EXPECT_EQ(set.sections.at(0).value(2), PropertyValue(u"first"_s));
}

TEST(PropertySetReader, withstands_every_stream_cut_off_anywhere) {
    for (const QString& name : {u"summary"_s, u"document-and-user"_s, u"wide-names"_s}) {
        const QByteArray whole = seed(name);
        for (qsizetype length = 0; length <= whole.size(); ++length)
            EXPECT_EQ(exercisePropertySet(propertyset::bytesOf(whole.left(length))),
                      length >= whole.size() - 3);
    }
}

TEST(PropertySetReader, withstands_every_byte_changed_to_a_few_others) {
    for (const QString& name : {u"summary"_s, u"document-and-user"_s, u"wide-names"_s}) {
        const QByteArray whole = seed(name);
        for (qsizetype place = 0; place < whole.size(); ++place) {
            for (const int value : {0, 1, 4, 0x7F, 0x80, 0xFF}) {
                QByteArray bytes = whole;
                bytes[place] = static_cast<char>(value);
                (void)exercisePropertySet(propertyset::bytesOf(bytes));
            }
        }
    }
}

TEST(PropertySetReader, reads_a_long_stream_of_short_values_without_delay) {
    PropertySet set;
    std::vector<PropertySection::Property> many;
    for (quint32 i = 0; i < 200'000; ++i)
        many.push_back({i + 2, QByteArray("\x03\0\0\0\x01\0\0\0", 8)});
    set.sections.push_back(PropertySection(userFormat(), std::move(many)));
    QByteArray bytes;
    EXPECT_EQ(numberOfError([&] { bytes = writePropertySet(set); }), 0);
    const PropertySet again = readSet(bytes);
    EXPECT_EQ(again.sections[0].properties().size(), 200'000U);
    PropertySection changed = again.sections[0];
    EXPECT_EQ(changed.addName(u"last"_s), 200'002U);
}
