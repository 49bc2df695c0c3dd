#include "shell/FormFixture.h"

#include <QLineEdit>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class frmMain1Test : public FormFixture {
protected:
    frmMain1Test() {
        for (const auto& [field, name] :
             {std::pair(&upper, u"upper"_s), std::pair(&lower, u"lower"_s)}) {
            field->setObjectName(name);
            field->show();
        }
        lower.move(0, 100);
    }

    QLineEdit upper{&form.panel(0)};
    QLineEdit lower{&form.panel(0)};
};

} // namespace

TEST_F(frmMain1Test, the_form_has_one_fixed_size_and_no_system_frame) {
    EXPECT_EQ(form.minimumSize(), QSize(984, 640));
    EXPECT_EQ(form.maximumSize(), QSize(984, 640));
    EXPECT_TRUE(form.windowFlags() & Qt::FramelessWindowHint);
    form.showMaximized();
    EXPECT_EQ(form.size(), QSize(984, 640));
}

TEST_F(frmMain1Test, the_tab_key_follows_the_numbers_of_the_controls) {
    order.setTabIndex(u"lower"_s, 0);
    order.setTabIndex(u"upper"_s, 1);
    lower.setFocus();
    QTest::keyClick(&lower, Qt::Key_Tab);
    EXPECT_TRUE(upper.hasFocus());
    QTest::keyClick(&upper, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(lower.hasFocus());
}

TEST_F(frmMain1Test, the_tab_key_gives_its_own_reason_for_the_focus) {
    class Watcher final : public QObject {
    public:
        Qt::FocusReason reason = Qt::OtherFocusReason;

    protected:
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() == QEvent::FocusIn)
                reason = static_cast<QFocusEvent*>(event)->reason();
            return false;
        }
    } watcher;

    order.setTabIndex(u"lower"_s, 0);
    order.setTabIndex(u"upper"_s, 1);
    lower.setFocus();
    upper.installEventFilter(&watcher);
    QTest::keyClick(&lower, Qt::Key_Tab);
    EXPECT_EQ(watcher.reason, Qt::TabFocusReason);
    lower.setFocus();
    order.setTabIndex(u"upper"_s, -1);
    QTest::keyClick(&lower, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(watcher.reason, Qt::BacktabFocusReason);
}

TEST_F(frmMain1Test, the_form_closes_unless_somebody_refuses) {
    int closings = 0;
    bool refuses = true;
    QObject::connect(&form, &frmMain1::closing, &form, [&](bool& refuse) {
        ++closings;
        refuse = refuses;
    });
    EXPECT_FALSE(form.close());
    EXPECT_TRUE(form.isVisible());
    refuses = false;
    EXPECT_TRUE(form.close());
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(closings, 2);
}

TEST_F(frmMain1Test, every_part_stands_within_the_form_and_beside_the_others) {
    const QStringList zones{u"picTab(0)"_s,   u"picTab(9)"_s,         u"picFrame"_s,
                            u"picHelpOn"_s,   u"picIndexContainer"_s, u"picBtnStepContainer"_s,
                            u"lblMenuFile"_s, u"imgResources"_s};
    for (const QString& zone : zones) {
        EXPECT_TRUE(form.rect().contains(control(zone).geometry())) << qPrintable(zone);
        for (const QString& other : zones)
            EXPECT_TRUE(zone == other ||
                        !control(zone).geometry().intersects(control(other).geometry()))
                << qPrintable(zone + u" and "_s + other);
    }
}

TEST_F(frmMain1Test, no_two_controls_of_the_form_bear_one_name) {
    QSet<QString> names;
    for (const QWidget* widget : form.findChildren<QWidget*>()) {
        const QString name = widget->objectName();
        if (name.isEmpty() || name.startsWith(u"qt_"_s) || name == u"picbutton"_s)
            continue;
        EXPECT_FALSE(names.contains(name)) << qPrintable(name);
        names.insert(name);
    }
}
