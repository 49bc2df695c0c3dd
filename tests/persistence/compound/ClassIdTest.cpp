#include "persistence/compound/ClassId.h"

#include "support/CompoundTesting.h"
#include "support/PrintQt.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

TEST(ClassId, has_the_first_three_groups_of_its_text_the_other_way_round) {
    const ClassId id = ClassId::fromText(u"{00112233-4455-6677-8899-AABBCCDDEEFF}"_s);
    EXPECT_EQ(id.bytes[0], std::byte{0x33});
    EXPECT_EQ(id.bytes[3], std::byte{0x00});
    EXPECT_EQ(id.bytes[4], std::byte{0x55});
    EXPECT_EQ(id.bytes[7], std::byte{0x66});
    EXPECT_EQ(id.bytes[8], std::byte{0x88});
    EXPECT_EQ(id.bytes[15], std::byte{0xFF});
}

TEST(ClassId, gives_the_text_that_it_was_made_of) {
    const QString text = u"{F29F85E0-4FF9-1068-AB91-08002B27B3D9}"_s;
    EXPECT_EQ(ClassId::fromText(text).toText(), text);
}

TEST(ClassId, refuses_any_other_form_of_text) {
    for (const QString& text : {u""_s, u"{}"_s, u"F29F85E0-4FF9-1068-AB91-08002B27B3D9"_s})
        EXPECT_EQ(errorOf([&] { (void)ClassId::fromText(text); }), 0x80030057);
}
