#include "shell/FormFixture.h"
#include "shell/WelcomePage.h"

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class WelcomePageFocusTest : public FormFixture {
protected:
    /// The names of the controls that the Tab key reaches, one press after another.
    [[nodiscard]] QStringList walk(Qt::Key key) {
        QStringList names;
        for (int presses = 0; presses < 12; ++presses) {
            QTest::keyClick(form.focusWidget(), key);
            names.append(form.focusWidget()->objectName());
        }
        return names;
    }
};

} // namespace

TEST_F(WelcomePageFocusTest, the_tab_key_stays_on_the_page_while_it_covers_the_sections) {
    form.welcome().show();
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        const QStringList reached = walk(key);
        for (const QString& name : reached)
            EXPECT_TRUE(control(name).parentWidget() == &form.welcome().page()) << qPrintable(name);
        EXPECT_TRUE(reached.contains(u"lblRecentPatents(0)"_s));
        EXPECT_TRUE(reached.contains(u"imgMoreObjects"_s));
    }
}

TEST_F(WelcomePageFocusTest, once_the_page_is_left_the_tab_key_reaches_the_buttons_again) {
    form.welcome().show();
    form.welcome().hide();
    control(u"webHelpOn"_s).setFocus();
    EXPECT_TRUE(walk(Qt::Key_Tab).contains(u"btnStep(1)"_s));
}
