#include "persistence/project/PropertySetWriter.h"

#include "PropertySetTesting.h"
#include "persistence/compound/EmptyPropertySet.h"

#include <array>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

TEST(PropertySetWriter, writes_an_unchanged_set_byte_for_byte) {
    for (const QString& name :
         {u"summary"_s, u"document-and-user"_s, u"wide-names"_s, u"utf-8"_s, u"no-code-page"_s})
        EXPECT_EQ(writePropertySet(readSet(seed(name))).toHex(), seed(name).toHex())
            << name.toStdString();
}

TEST(PropertySetWriter, writes_an_empty_set_as_a_new_project_file_has_it) {
    const std::array formats = {documentFormat(), userFormat()};
    PropertySet set;
    for (const ClassId& format : formats)
        set.sections.push_back(PropertySection::empty(format));
    EXPECT_EQ(writePropertySet(set).toHex(), emptyPropertySet(formats, false).toHex());
}

TEST(PropertySetWriter, fills_up_what_another_writer_left_out) {
    const QByteArray shortOne = seed(u"three-bytes-short"_s);
    EXPECT_EQ(writePropertySet(readSet(shortOne)).toHex(),
              (shortOne + QByteArray(3, '\0')).toHex());
}

TEST(PropertySetWriter, keeps_pictures_lists_and_locale_when_other_values_change) {
    PropertySet document = readSet(seed(u"document-and-user"_s));
    PropertySet summary = readSet(seed(u"summary"_s));
    document.sections[0].setValue(15, u"A company with a much longer name"_s);
    document.sections[1].setValue(document.sections[1].addName(u"New"_s), true);
    summary.sections[0].setValue(2, u""_s);
    PropertySet documentAgain = readSet(writePropertySet(document));
    PropertySet summaryAgain = readSet(writePropertySet(summary));
    const auto kept = [](const PropertySet& now, const QString& before, std::size_t section,
                         quint32 identifier) {
        const PropertyValue old = readSet(seed(before)).sections[section].value(identifier);
        return old != PropertyValue() && now.sections[section].value(identifier) == old;
    };
    EXPECT_TRUE(kept(documentAgain, u"document-and-user"_s, 0, 12));
    EXPECT_TRUE(kept(documentAgain, u"document-and-user"_s, 0, 13));
    EXPECT_TRUE(kept(documentAgain, u"document-and-user"_s, 1, 0x80000000));
    EXPECT_TRUE(kept(summaryAgain, u"summary"_s, 0, 17));
    EXPECT_EQ(documentAgain.sections[1].identifierOf(u"new"_s), 4U);
}

TEST(PropertySetWriter, keeps_version_system_and_class) {
    QByteArray bytes = seed(u"summary"_s);
    bytes[2] = 1;
    bytes[4] = 0x0A;
    bytes[8] = 0x55;
    EXPECT_EQ(writePropertySet(readSet(bytes)).toHex(), bytes.toHex());
}
