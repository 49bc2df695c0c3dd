#include "app/ProgramFixture.h"
#include "controls/ClickLabel.h"
#include "controls/Picture.h"
#include "controls/myImageButton.h"

#include <QAccessible>
#include <QSignalSpy>

#include <functional>

using namespace quillford;

namespace {

class AccessibilityTest : public ProgramFixture {
protected:
    using Visit = std::function<void(QAccessibleInterface& node)>;

    /// Everything that assistive programs see of the form as it is shown.
    static void walk(QAccessibleInterface* node, const Visit& visit) {
        if (!node || node->state().invisible)
            return;
        visit(*node);
        for (int i = 0; i < node->childCount(); ++i)
            walk(node->child(i), visit);
    }

    void walkForm(const Visit& visit) {
        walk(QAccessible::queryAccessibleInterface(&form()), visit);
    }

    static std::string nameOf(const QAccessibleInterface& node) {
        const QObject* object = node.object();
        QString name = object ? object->objectName() : u"?"_s;
        for (const QObject* up = object; up && name.isEmpty(); up = up->parent())
            name = up->objectName() + u" / "_s +
                   QString::fromLatin1(object->metaObject()->className());
        return name.toStdString();
    }

    /// Shows one tab after the other, the Welcome page first.
    void onEveryTab(const std::function<void(int tab)>& look) {
        start();
        look(-1);
        startWithSample();
        user.meets<QDialog>(presses(u"cmdOK"_s));
        for (const int index : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}) {
            if (index > 0)
                clickOn(tab(index));
            ASSERT_EQ(currentTab(), index);
            look(index);
        }
    }
};

} // namespace

TEST_F(AccessibilityTest, no_control_that_takes_the_focus_is_without_a_name) {
    onEveryTab([this](int index) {
        int focusable = 0;
        walkForm([&](QAccessibleInterface& node) {
            // The line within a list hands the focus to the list.
            const auto* widget = qobject_cast<QWidget*>(node.object());
            if (!node.state().focusable || node.role() == QAccessible::Client ||
                (widget && widget->focusProxy()))
                return;
            ++focusable;
            EXPECT_FALSE(node.text(QAccessible::Name).isEmpty())
                << nameOf(node) << " on tab " << index;
        });
        EXPECT_GT(focusable, 0) << index;
    });
}

TEST_F(AccessibilityTest, what_can_be_clicked_is_a_button_with_a_name) {
    onEveryTab([this](int index) {
        int buttons = 0;
        for (QWidget* widget : form().findChildren<QWidget*>()) {
            const bool clicks =
                widget->cursor().shape() == Qt::BitmapCursor &&
                (qobject_cast<ClickLabel*>(widget) || qobject_cast<myImageButton*>(widget));
            if (!clicks || !widget->isVisible())
                continue;
            ++buttons;
            QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(widget);
            EXPECT_EQ(seen->role(), QAccessible::Button) << nameOf(*seen) << " on tab " << index;
            EXPECT_FALSE(seen->text(QAccessible::Name).isEmpty())
                << nameOf(*seen) << " on tab " << index;
        }
        EXPECT_GT(buttons, 0) << index;
    });
}

TEST_F(AccessibilityTest, what_can_be_clicked_and_takes_the_focus_is_pressed_by_space_and_enter) {
    start();
    QList<QWidget*> pressed;
    for (QWidget* widget : form().findChildren<QWidget*>())
        if ((qobject_cast<ClickLabel*>(widget) || qobject_cast<myImageButton*>(widget)) &&
            widget->focusPolicy() != Qt::NoFocus)
            pressed.append(widget);
    EXPECT_GE(pressed.size(), 5);
    for (QWidget* widget : pressed) {
        widget->setEnabled(true);
        // What the click would start is no matter here.
        QObject::disconnect(widget, SIGNAL(clicked()), nullptr, nullptr);
        QSignalSpy clicks(widget, SIGNAL(clicked()));
        for (const int key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
            QCoreApplication::sendEvent(widget, &event);
        }
        EXPECT_EQ(clicks.count(), widget->isEnabled() ? 3 : 0) << qPrintable(widget->objectName());
    }
}

TEST_F(AccessibilityTest, the_tab_key_reaches_every_field_and_button_of_a_section) {
    startWithSample();
    for (const int index : {0, 1, 2, 4, 5, 6, 7}) {
        clickOn(tab(index));
        QSet<const QWidget*> wanted;
        for (const QWidget* widget : form().findChildren<QWidget*>())
            if (widget->isVisible() && widget->isEnabled() && !widget->focusProxy() &&
                (widget->focusPolicy() & Qt::TabFocus) && panel(index).isAncestorOf(widget))
                wanted.insert(widget);
        const qsizetype most = 4 * wanted.size() + 40;
        for (qsizetype i = 0; i < most && !wanted.isEmpty(); ++i) {
            QWidget* here = QApplication::focusWidget();
            QTest::keyClick(here ? here : &form(), Qt::Key_Tab);
            wanted.remove(QApplication::focusWidget());
        }
        for (const QWidget* left : wanted)
            ADD_FAILURE() << qPrintable(left->objectName()) << " on tab " << index;
    }
}
