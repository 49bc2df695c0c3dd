#include "shell/FinalDraftPage.h"

#include "controls/HtmlView.h"
#include "core/fields/Project.h"
#include "support/FakePictureLoader.h"
#include "support/FakePrompts.h"
#include "support/FakeTabLooks.h"
#include "support/Themed.h"

#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class FinalDraftPageTest : public testing::Test {
protected:
    FinalDraftPageTest() {
        panel.resize(700, 430);
        panel.show();
        page.setBuild([this] {
            ++builds;
            return false;
        });
    }

    const Themed theme;
    Project project;
    FakeTabLooks looks;
    FakePrompts prompts;
    SectionRules rules{project.fields, project.state, looks, prompts};
    FinalDraftEntry entry{project.fields, project.state, rules, looks};
    FakePictureLoader pictures;
    QWidget panel;
    FinalDraftPage page{panel, entry, pictures};
    HtmlView& preview = *panel.findChild<HtmlView*>(u"webPreview"_s);
    QLabel& advice = *panel.findChild<QLabel*>(u"lblPopTab9"_s);
    int builds = 0;
};

const QString Draft = u"<html><body><p>What is claimed</p></body></html>"_s;

} // namespace

TEST_F(FinalDraftPageTest, before_the_first_draft_the_preview_is_blank_and_has_the_whole_page) {
    EXPECT_EQ(preview.toPlainText(), QString());
    EXPECT_EQ(preview.address(), u"about:blank"_s);
    EXPECT_FALSE(advice.isVisible());
    EXPECT_GE(preview.height(), 425);
}

TEST_F(FinalDraftPageTest, a_draft_is_shown_five_under_the_advice_and_385_high) {
    page.showPreview(Draft);
    EXPECT_EQ(preview.toPlainText(), u"What is claimed"_s);
    EXPECT_TRUE(advice.isVisible());
    EXPECT_EQ(advice.width(), preview.width());
    EXPECT_EQ(preview.y(), advice.height() + 5);
    EXPECT_EQ(preview.height(), 385);
    EXPECT_LE(preview.geometry().bottom(), panel.height());
}

TEST_F(FinalDraftPageTest, the_advice_has_its_fixed_text) {
    EXPECT_EQ(
        advice.text(),
        u"This section allows you to review the final version of your provisional patent application prior to filing with the USPTO.  Take your time in reviewing your provisional patent application prior to filing.  In addition, it is recommended that you have a patent attorney review your provisional patent application prior to filing with the USPTO."_s);
}

TEST_F(FinalDraftPageTest, while_sections_are_incomplete_the_preview_says_which) {
    page.switched();
    EXPECT_EQ(builds, 1);
    EXPECT_EQ(
        preview.toPlainText(),
        u"Data is missing from Sections 1, 2, 3, 4, 5, 6, 7, 8. The Final Draft will be displayed after each section is complete."_s);
}

TEST_F(FinalDraftPageTest, a_draft_that_is_current_is_not_built_again) {
    project.state.draftCurrent = true;
    page.switched();
    EXPECT_EQ(builds, 0);
}

TEST_F(FinalDraftPageTest, entering_makes_the_advice_as_wide_as_the_preview) {
    advice.resize(100, advice.height());
    page.entered();
    EXPECT_EQ(advice.width(), preview.width());
}

TEST_F(FinalDraftPageTest, a_new_project_has_a_blank_preview_again) {
    page.showPreview(Draft);
    page.showBlankPreview();
    EXPECT_EQ(preview.toPlainText(), QString());
    EXPECT_FALSE(advice.isVisible());
    EXPECT_GE(preview.height(), 425);
}

TEST_F(FinalDraftPageTest, nothing_in_the_preview_can_be_selected_or_copied) {
    page.showPreview(Draft);
    EXPECT_EQ(preview.textInteractionFlags(), Qt::NoTextInteraction);
    EXPECT_EQ(preview.contextMenuPolicy(), Qt::PreventContextMenu);
    QTest::mouseDClick(preview.viewport(), Qt::LeftButton, {}, QPoint(30, 20));
    EXPECT_FALSE(preview.textCursor().hasSelection());
}
