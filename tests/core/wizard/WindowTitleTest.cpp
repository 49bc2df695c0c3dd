#include "core/wizard/WindowTitle.h"

#include "core/wizard/WizardFixture.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class WindowTitleTest : public WizardFixture {
protected:
    WindowTitle title{screen};
};

} // namespace

TEST_F(WindowTitleTest, names_the_program_and_the_file) {
    title.SetWindowTitle(u"easel.ivd"_s);
    EXPECT_EQ(calls(), Calls({"caption: Quillford 3.1 - easel.ivd"}));
}

TEST_F(WindowTitleTest, an_empty_name_shows_the_last_one_again) {
    title.SetWindowTitle(u"easel.ivd"_s);
    title.showProgramAlone();
    title.SetWindowTitle({});
    EXPECT_EQ(calls(), Calls({"caption: Quillford 3.1 - easel.ivd", "caption: Quillford 3.1",
                              "caption: Quillford 3.1 - easel.ivd"}));
}
