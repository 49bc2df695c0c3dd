#include "shell/PanelStack.h"

#include "controls/LineField.h"
#include "core/fields/Project.h"
#include "shell/FormFixture.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class PanelStackTest : public FormFixture {
protected:
    /// The panel that is seen, by what lies in the middle of their common place.
    [[nodiscard]] QWidget* inFront() {
        QWidget* seen = control(u"picFrame"_s).childAt(690, 420);
        while (seen && !seen->objectName().startsWith(u"picContainer("_s))
            seen = seen->parentWidget();
        return seen;
    }

    Project project;
    BoundFields bound{project.fields};
    PanelStack stack{form, form.help(), bound};
};

} // namespace

TEST_F(PanelStackTest, at_first_the_first_panel_is_in_front_and_the_only_one_enabled) {
    EXPECT_EQ(inFront(), &stack.panel(0));
    for (int tab = 0; tab < 10; ++tab)
        EXPECT_EQ(stack.isPanelEnabled(tab), tab == 0) << tab;
}

TEST_F(PanelStackTest, the_last_two_panels_are_hidden_and_the_others_only_lie_behind) {
    for (int tab = 0; tab < 10; ++tab)
        EXPECT_EQ(stack.isPanelShown(tab), tab < 8) << tab;
    stack.showPanel(8, true);
    EXPECT_TRUE(stack.isPanelShown(8));
}

TEST_F(PanelStackTest, a_panel_that_is_brought_to_the_front_covers_the_others) {
    stack.bringPanelToFront(5);
    EXPECT_EQ(inFront(), &stack.panel(5));
    stack.bringPanelToFront(2);
    EXPECT_EQ(inFront(), &stack.panel(2));
}

TEST_F(PanelStackTest, a_panel_under_the_welcome_page_is_enabled_or_not_on_its_own) {
    form.setEnabled(false);
    EXPECT_TRUE(stack.isPanelEnabled(0));
    stack.enablePanel(0, false);
    form.setEnabled(true);
    EXPECT_FALSE(stack.isPanelEnabled(0));
}

TEST_F(PanelStackTest, a_panel_itself_takes_the_focus_but_is_no_station_of_the_tab_key) {
    stack.enablePanel(3, true);
    stack.focusPanel(3);
    EXPECT_TRUE(stack.panel(3).hasFocus());
    EXPECT_FALSE(stack.panel(3).focusPolicy() & Qt::TabFocus);
}

TEST_F(PanelStackTest, the_focus_goes_into_the_control_of_a_field) {
    LineField fileNo(&stack.panel(0));
    fileNo.setObjectName(u"txtFileNo"_s);
    fileNo.show();
    bound.bindAll(stack.panel(0));
    stack.focusField(FieldId::txtFileNo, 0);
    EXPECT_TRUE(fileNo.hasFocus());
    stack.focusField(FieldId::txtOperation, 0);
    EXPECT_TRUE(fileNo.hasFocus()) << "a field without a control leaves the focus";
}

TEST_F(PanelStackTest, a_panel_without_a_page_of_its_own_has_nothing_to_do_on_a_switch) {
    stack.page(6).entered();
    stack.page(6).switched();

    class CountingPage final : public SectionPage {
    public:
        int entries = 0;

        void entered() override { ++entries; }

        void switched() override {}
    } own;

    stack.setPage(6, own);
    stack.page(6).entered();
    EXPECT_EQ(own.entries, 1);
}
