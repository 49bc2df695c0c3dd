#include "support/CompoundTesting.h"
#include "support/PrintQt.h"

#include <cmath>
#include <limits>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class FieldEncoding : public testing::Test {
protected:
    Storage root = MemoryCompound().create();
    Stream stream = root.CreateStream(u"fields"_s, Mode);

    QByteArray written() {
        stream.SSeek(0);
        QByteArray bytes;
        bytes.truncate(stream.ReadBuf(bytes, 1000));
        bytes.truncate(0);
        stream.SSeek(0);
        const qint32 count = stream.ReadBuf(bytes, 1000);
        bytes.truncate(count);
        return bytes;
    }

    void put(const QByteArray& bytes) {
        stream.SetSize(0);
        stream.SSeek(0);
        stream.WriteBuf(bytes);
        stream.SSeek(0);
    }

    qint64 position() {
        // The position is told by what can still be read.
        QByteArray rest;
        const qint32 left = stream.ReadBuf(rest, 100000);
        stream.SSeek(0);
        QByteArray all;
        return stream.ReadBuf(all, 100000) - left;
    }

    template <typename Type>
    Type read(qint32 code) {
        const FieldValue value = stream.ReadData(code);
        return std::get<Type>(value);
    }
};

class Plain : public StorableObject {};

/// Stores one byte, through the first interface.
class Marble : public StorableObject, public IPersistStream {
public:
    static ClassId id() { return ClassId::fromText(u"{00000001-0002-0003-0405-060708090A0B}"_s); }

    quint8 colour = 0;
    bool wasCleared = false;

    ClassId GetClassID() const override { return id(); }

    void Save(Stream& to, bool clearDirty) override {
        to.WriteData(colour);
        wasCleared = clearDirty;
    }

    void Load(Stream& from) override {
        QByteArray byte;
        from.ReadBuf(byte, 1);
        colour = static_cast<quint8>(byte[0]);
    }
};

/// The same through the second interface.
class Pebble : public StorableObject, public IPersistStreamInit {
public:
    static ClassId id() { return ClassId::fromText(u"{00000002-0002-0003-0405-060708090A0B}"_s); }

    quint8 colour = 0;

    ClassId GetClassID() const override { return id(); }

    void Save(Stream& to, bool) override { to.WriteData(colour); }

    void Load(Stream& from) override {
        QByteArray byte;
        from.ReadBuf(byte, 1);
        colour = static_cast<quint8>(byte[0]);
    }

    void InitNew() override { colour = 1; }
};

} // namespace

TEST_F(FieldEncoding, writes_each_type_little_endian_and_tells_the_bytes) {
    EXPECT_EQ(stream.WriteData(qint16{0x0102}), 2);
    EXPECT_EQ(stream.WriteData(qint32{0x01020304}), 4);
    EXPECT_EQ(stream.WriteData(1.0F), 4);
    EXPECT_EQ(stream.WriteData(1.0), 8);
    EXPECT_EQ(stream.WriteData(Currency{15000}), 8);
    EXPECT_EQ(stream.WriteData(Date{1.0}), 8);
    EXPECT_EQ(stream.WriteData(true), 2);
    EXPECT_EQ(stream.WriteData(false), 2);
    EXPECT_EQ(stream.WriteData(quint8{7}), 1);
    EXPECT_EQ(written().toHex(), "0201"
                                 "04030201"
                                 "0000803f"
                                 "000000000000f03f"
                                 "983a000000000000"
                                 "000000000000f03f"
                                 "ffff"
                                 "0000"
                                 "07");
}

TEST_F(FieldEncoding, writes_a_string_as_count_and_code_units) {
    EXPECT_EQ(stream.WriteData(u"a\u00E9\u0416"_s), 6) << "the count is not told";
    EXPECT_EQ(written().toHex(), "03000000"
                                 "6100e9001604");
}

TEST_F(FieldEncoding, writes_an_empty_string_as_four_zero_bytes) {
    EXPECT_EQ(stream.WriteData(QString()), 0);
    EXPECT_EQ(written().toHex(), "00000000");
}

TEST_F(FieldEncoding, passes_over_a_value_of_another_type_so_that_later_fields_shift) {
    EXPECT_EQ(stream.WriteData(std::monostate()), 0);
    EXPECT_EQ(stream.WriteData(qint16{5}), 2);
    EXPECT_EQ(written().toHex(), "0500");
}

TEST_F(FieldEncoding, reads_what_it_wrote) {
    const QString text = u"two\r\nlines \U0001F600\xD800"_s;
    stream.WriteData(qint16{-2});
    stream.WriteData(std::numeric_limits<qint32>::min());
    stream.WriteData(-0.25F);
    stream.WriteData(std::numeric_limits<double>::infinity());
    stream.WriteData(Currency{-1});
    stream.WriteData(Date{36526.5});
    stream.WriteData(text);
    stream.WriteData(true);
    stream.WriteData(QString());
    stream.WriteData(false);
    stream.SSeek(0);
    EXPECT_EQ(read<qint16>(2), -2);
    EXPECT_EQ(read<qint32>(3), std::numeric_limits<qint32>::min());
    EXPECT_EQ(read<float>(4), -0.25F);
    EXPECT_TRUE(std::isinf(read<double>(5)));
    EXPECT_EQ(read<Currency>(6), Currency{-1});
    EXPECT_EQ(read<Date>(7), Date{36526.5});
    EXPECT_EQ(read<QString>(8), text);
    EXPECT_TRUE(read<bool>(11));
    EXPECT_EQ(read<QString>(8), QString());
    EXPECT_FALSE(read<bool>(11));
}

TEST_F(FieldEncoding, reads_past_the_end_as_zero_false_or_empty) {
    EXPECT_EQ(read<qint16>(2), 0);
    EXPECT_EQ(read<qint32>(3), 0);
    EXPECT_EQ(read<float>(4), 0.0F);
    EXPECT_EQ(read<double>(5), 0.0);
    EXPECT_EQ(read<Currency>(6), Currency{0});
    EXPECT_EQ(read<Date>(7), Date{0.0});
    EXPECT_EQ(read<QString>(8), QString());
    EXPECT_FALSE(read<bool>(11));
}

TEST_F(FieldEncoding, takes_the_missing_bytes_of_a_number_as_zero) {
    put(QByteArray::fromHex("0102"));
    EXPECT_EQ(read<qint32>(3), 0x0201);
}

TEST_F(FieldEncoding, gives_a_string_that_is_cut_off_its_stated_length) {
    put(QByteArray::fromHex("04000000"
                            "6100"
                            "62"));
    EXPECT_EQ(read<QString>(8), QString(u"ab"_s + QString(2, QChar())));
}

TEST_F(FieldEncoding, reads_a_negative_count_as_the_empty_string_and_stays_behind_it) {
    put(QByteArray::fromHex("ffffffff"
                            "0700"));
    EXPECT_EQ(read<QString>(8), QString());
    EXPECT_EQ(read<qint16>(2), 7);
}

TEST_F(FieldEncoding, raises_an_error_for_a_count_that_no_memory_holds) {
    put(QByteArray::fromHex("ffffff7f"
                            "6100"));
    EXPECT_EQ(errorOf([&] { (void)stream.ReadData(8); }), 0x80030008);
}

TEST_F(FieldEncoding, reads_any_number_but_0_as_true) {
    put(QByteArray::fromHex("0200"
                            "0080"
                            "0000"));
    EXPECT_TRUE(read<bool>(11));
    EXPECT_TRUE(read<bool>(11));
    EXPECT_FALSE(read<bool>(11));
}

TEST_F(FieldEncoding, reads_nothing_for_a_type_that_is_not_read) {
    put("abcdef");
    for (const qint32 type : {0, 1, 9, 10, 12, 17, -1, 8192}) {
        EXPECT_TRUE(std::holds_alternative<std::monostate>(stream.ReadData(type))) << type;
        EXPECT_EQ(position(), 0) << type;
        stream.SSeek(0);
    }
}

TEST_F(FieldEncoding, writes_nothing_as_the_null_class) {
    stream.WriteObject(nullptr);
    EXPECT_EQ(written(), QByteArray(16, '\0'));
    stream.SSeek(0);
    stream.WriteData(std::shared_ptr<StorableObject>());
    EXPECT_EQ(written(), QByteArray(16, '\0'));
}

TEST_F(FieldEncoding, reads_the_null_class_as_nothing_and_no_further) {
    put(QByteArray(16, '\0') + "ab");
    EXPECT_EQ(stream.ReadObject(ObjectRegistry()), nullptr);
    QByteArray rest;
    EXPECT_EQ(stream.ReadBuf(rest, 2), 2);
    EXPECT_EQ(rest, "ab");
}

TEST_F(FieldEncoding, writes_an_object_of_either_interface_with_the_same_mark) {
    const auto marble = std::make_shared<Marble>();
    marble->colour = 9;
    marble->wasCleared = true;
    stream.WriteObject(marble);
    EXPECT_EQ(written().toHex(), "0100000002000300"
                                 "0405060708090a0b"
                                 "ffff"
                                 "09");
    EXPECT_FALSE(marble->wasCleared);
    const auto pebble = std::make_shared<Pebble>();
    pebble->colour = 8;
    stream.SSeek(0);
    EXPECT_EQ(stream.WriteData(std::shared_ptr<StorableObject>(pebble)), 0);
    EXPECT_EQ(written().toHex().right(6), "ffff08");
}

TEST_F(FieldEncoding, reads_an_object_by_its_registered_class) {
    ObjectRegistry registry;
    registry.add(Marble::id(), [] { return std::make_shared<Marble>(); });
    const auto marble = std::make_shared<Marble>();
    marble->colour = 9;
    stream.WriteObject(marble);
    stream.SSeek(0);
    const auto read = std::dynamic_pointer_cast<Marble>(stream.ReadObject(registry));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->colour, 9);
}

TEST_F(FieldEncoding, chooses_the_reading_interface_by_the_mark_alone) {
    ObjectRegistry registry;
    registry.add(Pebble::id(), [] { return std::make_shared<Pebble>(); });
    const auto pebble = std::make_shared<Pebble>();
    pebble->colour = 3;
    stream.WriteObject(pebble);
    stream.SSeek(0);
    // The mark asks for the first interface, whoever wrote the object.
    EXPECT_EQ(errorOf([&] { (void)stream.ReadObject(registry); }), 0x80004002);
    stream.SSeek(16);
    stream.WriteData(qint16{0});
    stream.SSeek(0);
    const auto read = std::dynamic_pointer_cast<Pebble>(stream.ReadObject(registry));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->colour, 3);
}

TEST_F(FieldEncoding, refuses_an_object_without_either_interface) {
    try {
        stream.WriteObject(std::make_shared<Plain>());
        FAIL() << "no error";
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), 0x80004002);
        EXPECT_EQ(error.description(),
                  u"The object must implement IPersistStream or IPersistStreamInit"_s);
    }
    EXPECT_EQ(written(), QByteArray());
}

TEST_F(FieldEncoding, raises_the_registrys_error_for_an_unknown_class) {
    stream.WriteObject(std::make_shared<Marble>());
    stream.SSeek(0);
    EXPECT_EQ(errorOf([&] { (void)stream.ReadObject(ObjectRegistry()); }), 0x80040154);
}
