#include "persistence/project/PropertyEncoding.h"

#include "persistence/project/PropertyBytes.h"
#include "support/PrintQt.h"

#include <array>
#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray hex(const char* digits) {
    return QByteArray::fromHex(digits);
}

PropertyValue decoded(const QByteArray& bytes, quint16 codePage = 1252) {
    return decodeProperty(propertyset::bytesOf(bytes), CodePage(codePage));
}

QByteArray encoded(const PropertyValue& value, quint16 codePage = 1252) {
    return encodeProperty(value, CodePage(codePage)).toHex(' ');
}

} // namespace

TEST(PropertyEncoding, gives_each_type_its_published_bytes) {
    EXPECT_EQ(encoded(std::monostate()), "00 00 00 00");
    EXPECT_EQ(encoded(qint16{-2}), "02 00 00 00 fe ff 00 00");
    EXPECT_EQ(encoded(qint32{-2}), "03 00 00 00 fe ff ff ff");
    EXPECT_EQ(encoded(1.5F), "04 00 00 00 00 00 c0 3f");
    EXPECT_EQ(encoded(1.5), "05 00 00 00 00 00 00 00 00 00 f8 3f");
    EXPECT_EQ(encoded(Currency{10'000}), "06 00 00 00 10 27 00 00 00 00 00 00");
    EXPECT_EQ(encoded(Date{1.5}), "07 00 00 00 00 00 00 00 00 00 f8 3f");
    EXPECT_EQ(encoded(true), "0b 00 00 00 ff ff 00 00");
    EXPECT_EQ(encoded(false), "0b 00 00 00 00 00 00 00");
    EXPECT_EQ(encoded(qint8{-2}), "10 00 00 00 fe 00 00 00");
    EXPECT_EQ(encoded(quint8{254}), "11 00 00 00 fe 00 00 00");
    EXPECT_EQ(encoded(quint16{65534}), "12 00 00 00 fe ff 00 00");
    EXPECT_EQ(encoded(quint32{4294967294}), "13 00 00 00 fe ff ff ff");
    EXPECT_EQ(encoded(qint64{-2}), "14 00 00 00 fe ff ff ff ff ff ff ff");
    EXPECT_EQ(encoded(quint64{2}), "15 00 00 00 02 00 00 00 00 00 00 00");
    EXPECT_EQ(encoded(FileTime{2}), "40 00 00 00 02 00 00 00 00 00 00 00");
    EXPECT_EQ(encoded(ClassId::fromText(u"{00112233-4455-6677-8899-AABBCCDDEEFF}"_s)),
              "48 00 00 00 33 22 11 00 55 44 77 66 88 99 aa bb cc dd ee ff");
}

TEST(PropertyEncoding, reads_back_every_value_that_it_wrote) {
    const std::array<PropertyValue, 18> values = {
        std::monostate(),
        true,
        false,
        qint8{-128},
        quint8{255},
        qint16{-32768},
        quint16{65535},
        qint32{-2147483647},
        quint32{4294967295},
        qint64{-5'000'000'000},
        quint64{~quint64{0}},
        -0.25F,
        1e300,
        Currency{-1},
        Date{45000.75},
        u"caf\u00e9"_s,
        FileTime{~quint64{0}},
        OpaqueValue{0x101E, hex("0100000002000000 4100 0000")}};
    for (const quint16 codePage : std::array<quint16, 4>{1252, 1200, 65001, 4}) {
        for (const PropertyValue& value : values)
            EXPECT_EQ(decoded(encodeProperty(value, CodePage(codePage)), codePage), value)
                << "type " << value.index() << ", code page " << codePage;
    }
}

TEST(PropertyEncoding, reads_the_types_that_it_does_not_write) {
    EXPECT_EQ(decoded(hex("01000000")), PropertyValue(std::monostate()));
    EXPECT_EQ(decoded(hex("16000000 feffffff")), PropertyValue(qint32{-2}));
    EXPECT_EQ(decoded(hex("17000000 feffffff")), PropertyValue(quint32{4294967294}));
    EXPECT_EQ(decoded(hex("08000000 03000000 616200 00")), PropertyValue(u"ab"_s));
    EXPECT_EQ(decoded(hex("0b000000 0100 0000")), PropertyValue(true)) << "any number but 0";
}

TEST(PropertyEncoding, writes_text_in_the_code_page_of_the_set) {
    EXPECT_EQ(encoded(u"caf\u00e9"_s), "1e 00 00 00 05 00 00 00 63 61 66 e9 00 00 00 00");
    EXPECT_EQ(encoded(u"\u00e9"_s, 65001), "1e 00 00 00 03 00 00 00 c3 a9 00 00");
    EXPECT_EQ(encoded(u""_s), "1e 00 00 00 01 00 00 00 00 00 00 00");
}

TEST(PropertyEncoding, writes_text_in_utf_16_where_the_code_page_does_not_do) {
    EXPECT_EQ(encoded(u"ab"_s, 1200), "1f 00 00 00 03 00 00 00 61 00 62 00 00 00 00 00");
    EXPECT_EQ(encoded(u"\u0416"_s, 1252), "1f 00 00 00 02 00 00 00 16 04 00 00");
    EXPECT_EQ(encoded(u"a"_s, 4), "1f 00 00 00 02 00 00 00 61 00 00 00");
}

TEST(PropertyEncoding, ends_a_text_at_its_first_zero_character) {
    EXPECT_EQ(encoded(u"a\0b"_s), encoded(u"a"_s));
}

TEST(PropertyEncoding, reads_narrow_text_of_a_wide_set_as_utf_16) {
    EXPECT_EQ(decoded(hex("1e000000 06000000 6100 6200 0000 0000"), 1200), PropertyValue(u"ab"_s));
}

TEST(PropertyEncoding, takes_a_length_that_counts_no_terminator) {
    EXPECT_EQ(decoded(hex("1e000000 02000000 6162")), PropertyValue(u"ab"_s));
    EXPECT_EQ(decoded(hex("1f000000 02000000 61006200")), PropertyValue(u"ab"_s));
    EXPECT_EQ(decoded(hex("1e000000 00000000")), PropertyValue(u""_s));
}

TEST(PropertyEncoding, shows_a_value_that_is_cut_off_as_it_stands) {
    EXPECT_EQ(decoded(hex("03000000 0100")), PropertyValue(OpaqueValue{3, hex("0100")}));
    EXPECT_EQ(decoded(hex("1e000000 ffffffff 6162")),
              PropertyValue(OpaqueValue{30, hex("ffffffff 6162")}));
    EXPECT_EQ(decoded(hex("1f000000 ffffffff 6162")),
              PropertyValue(OpaqueValue{31, hex("ffffffff 6162")}));
}

TEST(PropertyEncoding, shows_a_picture_and_a_list_as_they_stand) {
    EXPECT_EQ(decoded(hex("47000000 04000000 ffffffff")),
              PropertyValue(OpaqueValue{71, hex("04000000 ffffffff")}));
    EXPECT_EQ(decoded(hex("0c100000 00000000")),
              PropertyValue(OpaqueValue{0x100C, hex("00000000")}));
}
