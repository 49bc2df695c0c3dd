#include "base/Error.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

using quillford::Error;

TEST(Error, keeps_its_number_description_source_and_offset) {
    const Error error(10000, QStringLiteral("Block out Not Exists"),
                      QStringLiteral("Template Class"), 17);
    EXPECT_EQ(error.number(), 10000);
    EXPECT_EQ(error.description(), QStringLiteral("Block out Not Exists"));
    EXPECT_EQ(error.source(), QStringLiteral("Template Class"));
    EXPECT_EQ(error.offset(), 17);
}

TEST(Error, without_a_place_in_a_file_has_no_offset) {
    EXPECT_EQ(Error(1, QStringLiteral("x")).offset(), Error::NoOffset);
}

TEST(Error, is_caught_as_a_standard_exception_with_its_description_in_utf8) {
    try {
        throw Error(1, QStringLiteral("no café"));
    } catch (const std::exception& error) {
        EXPECT_STREQ(error.what(), "no caf\xC3\xA9");
    }
}
