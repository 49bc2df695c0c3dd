#include "support/ModalUser.h"

#include <gtest/gtest-spi.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// A box that only its user closes.
void ask() {
    QMessageBox(QMessageBox::NoIcon, u"Save Project?"_s, u"now?"_s, QMessageBox::Yes).exec();
}

} // namespace

TEST(ModalUserTest, a_window_that_nobody_expects_fails_and_is_closed) {
    EXPECT_NONFATAL_FAILURE(
        {
            ModalUser user;
            ask();
        },
        "not expected: Save Project?: now?; expected: nothing");
}

TEST(ModalUserTest, a_window_in_the_place_of_another_fails_and_so_does_the_one_that_does_not_come) {
    testing::TestPartResultArray failures;
    {
        const testing::ScopedFakeTestPartResultReporter reporter(
            testing::ScopedFakeTestPartResultReporter::INTERCEPT_ALL_THREADS, &failures);
        ModalUser user;
        user.isAsked(u"Error"_s, QMessageBox::Ok);
        ask();
        EXPECT_FALSE(user.allCame());
    }
    ASSERT_EQ(failures.size(), 2);
    EXPECT_STREQ(failures.GetTestPartResult(0).message(),
                 "Failed\nnot expected: Save Project?: now?; expected: Error");
    EXPECT_STREQ(failures.GetTestPartResult(1).message(), "Failed\ndid not come up: Error");
}

TEST(ModalUserTest, another_text_of_a_box_fails) {
    EXPECT_NONFATAL_FAILURE(
        {
            ModalUser user;
            user.isAsked(u"Save Project?"_s, QMessageBox::Yes, u"later?"_s);
            ask();
        },
        "later?");
}

TEST(ModalUserTest, a_window_that_opens_within_an_answer_is_met_by_the_next_step) {
    ModalUser user;
    user.isAsked(u"Save Project?"_s, [](QDialog& first) {
        ask();
        first.accept();
    });
    user.isAsked(u"Save Project?"_s, QMessageBox::Yes);
    ask();
    EXPECT_TRUE(user.allCame());
}
