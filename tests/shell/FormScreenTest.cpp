#include "shell/FormScreen.h"

#include "shell/FormFixture.h"

#include <QLabel>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class FormScreenTest : public FormFixture {
protected:
    int blanks = 0;
    FormScreen screen{form, form.title(), form.welcome(), [this] { ++blanks; }};
};

} // namespace

TEST_F(FormScreenTest, the_hourglass_stands_over_the_whole_form_until_it_is_taken_away) {
    screen.setHourglass(true);
    EXPECT_EQ(form.cursor().shape(), Qt::WaitCursor);
    EXPECT_EQ(control(u"picFrame"_s).cursor().shape(), Qt::WaitCursor);
    screen.setHourglass(false);
    EXPECT_EQ(form.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(FormScreenTest, the_welcome_page_counts_as_shown_also_before_the_form_is) {
    form.hide();
    EXPECT_FALSE(screen.isWelcomePageShown());
    screen.showWelcomePage();
    EXPECT_TRUE(screen.isWelcomePageShown());
    screen.hideWelcomePage();
    EXPECT_FALSE(screen.isWelcomePageShown());
}

TEST_F(FormScreenTest, the_caption_and_the_blank_preview_go_to_their_parts) {
    screen.setCaption(u"Quillford 3.1 - easel"_s);
    EXPECT_EQ(control<QLabel>(u"lblCaption"_s).text(), u"Quillford 3.1 - easel"_s);
    screen.showBlankPreview();
    EXPECT_EQ(blanks, 1);
}
