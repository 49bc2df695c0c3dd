#include "shell/StepBar.h"

#include "shell/FormFixture.h"

#include <QSignalSpy>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class StepBarTest : public FormFixture {
protected:
    [[nodiscard]] QWidget& face(const QString& button) {
        return *control(button).findChild<QWidget*>(u"picbutton"_s);
    }

    void click(const QString& button) { QTest::mouseClick(&face(button), Qt::LeftButton); }

    StepBar& bar = form.bar();
    QWidget& steps = control(u"picBtnStepContainer"_s);
    QWidget& exports = control(u"picBtnStep9Container(1)"_s);
};

} // namespace

TEST_F(StepBarTest, exactly_one_bar_is_shown_and_enabled) {
    EXPECT_TRUE(steps.isVisible()) << "it is the first";
    bar.showBar(ButtonBar::Export);
    EXPECT_FALSE(steps.isVisible() || steps.isEnabled());
    EXPECT_TRUE(exports.isVisible() && exports.isEnabled());
    bar.showBar(ButtonBar::Step);
    EXPECT_TRUE(steps.isVisible() && steps.isEnabled());
    EXPECT_FALSE(exports.isVisible() || exports.isEnabled());
}

TEST_F(StepBarTest, the_filing_page_has_no_bar) {
    bar.showBar(ButtonBar::None);
    EXPECT_FALSE(steps.isVisible() || steps.isEnabled());
    EXPECT_FALSE(exports.isVisible() || exports.isEnabled());
}

TEST_F(StepBarTest, both_bars_stand_at_the_one_place) {
    EXPECT_EQ(steps.geometry(), exports.geometry());
}

TEST_F(StepBarTest, the_star_and_its_words_stand_beside_the_steps) {
    EXPECT_TRUE(control(u"imgstar(0)"_s).isVisible());
    bar.showBar(ButtonBar::Export);
    EXPECT_FALSE(control(u"imgstar(0)"_s).isVisible());
}

TEST_F(StepBarTest, a_step_that_is_disabled_takes_no_click) {
    QSignalSpy clicks(&bar, &StepBar::btnStep_Click);
    bar.enableStepButton(StepButton::Back, false);
    click(u"btnStep(0)"_s);
    EXPECT_EQ(clicks.count(), 0);
    click(u"btnStep(1)"_s);
    bar.enableStepButton(StepButton::Back, true);
    click(u"btnStep(0)"_s);
    ASSERT_EQ(clicks.count(), 2);
    EXPECT_EQ(clicks[0].first().toInt(), 1);
    EXPECT_EQ(clicks[1].first().toInt(), 0);
}

TEST_F(StepBarTest, the_draft_commands_are_off_until_they_are_enabled) {
    QSignalSpy exported(&bar, &StepBar::imgCreateToFile_Click);
    QSignalSpy printed(&bar, &StepBar::imgPrintFile_Click);
    const QStringList commands{u"imgCreateToFile(1)"_s, u"imgCreateToFile(2)"_s,
                               u"imgPrintFile(1)"_s};
    bar.showBar(ButtonBar::Export);
    for (const QString& command : commands)
        click(command);
    EXPECT_EQ(exported.count() + printed.count(), 0);
    bar.enableDraftCommands(true);
    for (const QString& command : commands)
        click(command);
    ASSERT_EQ(exported.count(), 2);
    EXPECT_EQ(exported[0].first().toInt(), 1);
    EXPECT_EQ(exported[1].first().toInt(), 2);
    EXPECT_EQ(printed.count(), 1);
    bar.enableDraftCommands(false);
    click(u"imgPrintFile(1)"_s);
    EXPECT_EQ(printed.count(), 1);
}

TEST_F(StepBarTest, every_button_shows_the_hand) {
    for (const QString& button : {u"btnStep(0)"_s, u"btnStep(1)"_s, u"imgCreateToFile(1)"_s,
                                  u"imgCreateToFile(2)"_s, u"imgPrintFile(1)"_s})
        EXPECT_EQ(control(button).cursor().shape(), Qt::BitmapCursor) << qPrintable(button);
}
