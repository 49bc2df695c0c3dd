#include "draft/compose/Trapped.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>
#include <new>
#include <stdexcept>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

const Error OlderFailure(1, u"an older failure"_s);

} // namespace

TEST(Trapped, what_a_composition_answers_is_the_answer) {
    for (const bool answer : {true, false}) {
        std::optional<Error> failure = OlderFailure;
        EXPECT_EQ(trapFailures(failure, [answer] { return answer; }), answer);
        EXPECT_FALSE(failure.has_value());
    }
}

TEST(Trapped, an_error_ends_it_with_false_and_is_kept) {
    std::optional<Error> failure = OlderFailure;
    EXPECT_FALSE(trapFailures(failure, []() -> bool {
        throw Error(10000, u"Block x Not Exists"_s, u"Template Class"_s);
    }));
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->number(), 10000);
    EXPECT_EQ(failure->description(), u"Block x Not Exists"_s);
    EXPECT_EQ(failure->source(), u"Template Class"_s);
}

TEST(Trapped, any_other_failure_is_an_internal_error_with_its_own_words) {
    std::optional<Error> failure;
    EXPECT_FALSE(trapFailures(failure, []() -> bool { throw std::runtime_error("no luck"); }));
    EXPECT_EQ(failure->number(), 51);
    EXPECT_EQ(failure->description(), u"no luck"_s);
    EXPECT_FALSE(trapFailures(failure, []() -> bool { throw std::bad_alloc(); }));
    EXPECT_EQ(failure->number(), 51);
    EXPECT_FALSE(failure->description().isEmpty());
}
