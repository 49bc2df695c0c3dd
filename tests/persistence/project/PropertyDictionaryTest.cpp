#include "persistence/project/PropertyDictionary.h"

#include "PropertySetTesting.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray hex(const char* digits) {
    return QByteArray::fromHex(digits);
}

PropertyDictionary read(const QByteArray& bytes, quint16 codePage) {
    return {propertyset::bytesOf(bytes), CodePage(codePage)};
}

/// Two names, "abc" for 5 and "d" for 2.
const QByteArray narrowNames =
    hex("02000000 05000000 04000000 61626300 02000000 02000000 6400 0000");
/// The same in UTF-16.
const QByteArray wideNames = hex("02000000 05000000 04000000 6100620063000000"
                                 "02000000 02000000 64000000");

} // namespace

TEST(PropertyDictionary, writes_narrow_names_without_padding_between_them) {
    PropertyDictionary names{CodePage(1252)};
    names.add(5, u"abc"_s);
    names.add(2, u"d"_s);
    EXPECT_EQ(names.encoded().toHex(), narrowNames.toHex());
}

TEST(PropertyDictionary, pads_each_wide_name) {
    PropertyDictionary names{CodePage(1200)};
    names.add(5, u"abc"_s);
    names.add(2, u"d"_s);
    EXPECT_EQ(names.encoded().toHex(), wideNames.toHex());
    names.add(3, u"ef"_s);
    EXPECT_EQ(names.encoded().mid(wideNames.size()).toHex(),
              hex("03000000 03000000 650066000000 0000").toHex());
}

TEST(PropertyDictionary, finds_names_and_identifiers_in_either_form) {
    for (const auto& [bytes, codePage] :
         {std::pair(narrowNames, 1252), std::pair(wideNames, 1200)}) {
        const PropertyDictionary names = read(bytes, static_cast<quint16>(codePage));
        EXPECT_EQ(names.nameOf(5), u"abc"_s);
        EXPECT_EQ(names.nameOf(2), u"d"_s);
        EXPECT_TRUE(names.nameOf(3).isNull());
        EXPECT_EQ(names.identifierOf(u"ABC"_s), 5U) << "case makes no difference";
        EXPECT_EQ(names.identifierOf(u"D"_s), 2U);
        EXPECT_FALSE(names.identifierOf(u"ab"_s));
    }
}

TEST(PropertyDictionary, keeps_what_it_read_byte_for_byte) {
    // 0xFF is no character of Shift_JIS, and the second name has no terminator.
    const QByteArray odd = hex("02000000 02000000 03000000 41ff00 03000000 01000000 42 00000000");
    PropertyDictionary names = read(odd, 932);
    EXPECT_EQ(names.nameOf(3), u"B"_s);
    EXPECT_EQ(names.encoded().left(24).toHex(), odd.left(24).toHex());
}

TEST(PropertyDictionary, reads_the_last_wide_name_without_its_padding) {
    const QByteArray bytes = hex("01000000 02000000 03000000 650066000000");
    EXPECT_EQ(read(bytes, 1200).nameOf(2), u"ef"_s);
}

TEST(PropertyDictionary, gives_the_names_before_a_damage_and_takes_no_other) {
    PropertyDictionary names =
        read(hex("03000000 05000000 04000000 61626300 02000000 ffffffff 64"), 1252);
    EXPECT_EQ(names.nameOf(5), u"abc"_s);
    EXPECT_TRUE(names.nameOf(2).isNull());
    const auto error = errorOf([&] { names.add(9, u"new"_s); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), numberOf(StorageCode::DocumentCorrupt));
    EXPECT_EQ(error->description(),
              u"The property set is damaged: a name in its dictionary is cut off."_s);
}

TEST(PropertyDictionary, refuses_a_name_that_cannot_be_one) {
    PropertyDictionary names{CodePage(1252)};
    for (const QString& name : {QString(), QString(256, u'a'), u"a\0"_s, u"\u0416"_s})
        EXPECT_EQ(numberOfError([&] { names.add(2, name); }), numberOf(StorageCode::InvalidName));
    names.add(2, QString(255, u'a'));
    EXPECT_EQ(names.nameOf(2).size(), 255);
}

TEST(PropertyDictionary, of_many_names_is_searched_without_delay) {
    PropertyDictionary names{CodePage(1200)};
    constexpr quint32 Count = 100'000;
    for (quint32 i = 0; i < Count; ++i)
        names.add(i + 2, QString::number(i));
    for (quint32 i = 0; i < Count; ++i)
        ASSERT_EQ(names.nameOf(*names.identifierOf(QString::number(i))), QString::number(i));
}
