#include "app/ProgramFixture.h"

using namespace quillford;

namespace {

class FilingOnScreenTest : public ProgramFixture {};

} // namespace

TEST_F(FilingOnScreenTest, a_killed_program_shows_its_new_project_as_recovered) {
    start();
    click(u"lblRecentPatents(0)"_s);
    type(u"txtInventionTitle"_s, u"Easel"_s);
    letTimerSave();
    EXPECT_EQ(draftFiles(), QStringList{u"Draft -  1.ivd"_s});
    kill();
    start();
    click(u"lblRecentPatents(1)"_s);
    EXPECT_EQ(shown(u"txtInventionTitle"_s), u"Easel"_s);
}
