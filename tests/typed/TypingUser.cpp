#include "typed/TypingUser.h"

#include "controls/FormCombo.h"
#include "controls/LineField.h"
#include "controls/TextField.h"
#include "core/wizard/FocusOrder.h"
#include "support/PrintQt.h"

#include <QApplication>
#include <QCheckBox>
#include <QWheelEvent>
#include <QWindow>
#include <QTest>

#include <gtest/gtest.h>

namespace quillford {

namespace {

QWidget& takesKeys() {
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup->focusWidget() ? *popup->focusWidget() : *popup;
    if (QWidget* focus = QApplication::focusWidget())
        return *focus;
    if (QWidget* window = QApplication::activeWindow())
        return *window;
    throw std::runtime_error("no window takes the keys");
}

} // namespace

TypingUser::TypingUser(QWidget& form) : form_(form) {
    comeBack();
}

int TypingUser::shownMembers(const QString& name) const {
    int count = 0;
    for (;; ++count) {
        const auto* const member = form_.findChild<QWidget*>(controlName(name, count));
        if (!member || !member->isVisible())
            return count;
    }
}

bool TypingUser::isInView(const QWidget& widget) const {
    const QPoint middle = widget.mapTo(&form_, widget.rect().center());
    const QWidget* const uppermost = form_.childAt(middle);
    return uppermost && (uppermost == &widget || widget.isAncestorOf(uppermost));
}

void TypingUser::click(const QString& name) {
    const QWidget& widget = control(name);
    ASSERT_TRUE(isInView(widget)) << qPrintable(name) << " cannot be clicked";
    QTest::mouseClick(form_.windowHandle(), Qt::LeftButton, {},
                      widget.mapTo(&form_, widget.rect().center()));
}

void TypingUser::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&takesKeys(), key, modifiers);
}

void TypingUser::type(const QString& text) {
    const QStringList lines = text.split(QStringLiteral("\r\n"));
    for (qsizetype line = 0; line < lines.size(); ++line) {
        if (line > 0)
            press(Qt::Key_Return);
        for (const QChar character : lines[line])
            QTest::sendKeyEvent(QTest::Click, &takesKeys(), Qt::Key_unknown, QString(character),
                                Qt::NoModifier);
    }
}

void TypingUser::tabTo(const QString& name) {
    constexpr int MostPresses = 300;
    const QWidget& widget = control(name);
    for (int i = 0; i < MostPresses && QApplication::focusWidget() != &widget; ++i)
        press(Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), &widget) << qPrintable(name) << " is not reached";
    wheelTo(widget);
}

/// The sections do not follow the Tab key into each of their lists.
void TypingUser::wheelTo(const QWidget& widget) {
    constexpr int MostNotches = 100;
    for (int i = 0; i < MostNotches && !isInView(widget); ++i) {
        const QPoint place = form_.rect().center();
        const bool isAbove = widget.mapTo(&form_, widget.rect().center()).y() < place.y();
        QWheelEvent notch(place, form_.mapToGlobal(place), {}, {0, isAbove ? 120 : -120},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(form_.childAt(place), &notch);
    }
    EXPECT_TRUE(isInView(widget)) << qPrintable(widget.objectName()) << " is out of view";
}

void TypingUser::fill(const QString& name, const QString& text) {
    tabTo(name);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    type(text);
}

void TypingUser::choose(const QString& name, const QString& row) {
    const int index = control<FormCombo>(name).findText(row);
    ASSERT_GE(index, 0) << qPrintable(name) << " has no row " << qPrintable(row);
    tabTo(name);
    press(Qt::Key_F4);
    press(Qt::Key_Home);
    for (int i = 0; i < index; ++i)
        press(Qt::Key_Down);
    press(Qt::Key_Return);
    comeBack();
}

QString TypingUser::textOf(const QWidget& widget) {
    if (auto* box = qobject_cast<const QCheckBox*>(&widget))
        return QString::number(box->isChecked());
    if (auto* combo = qobject_cast<const FormCombo*>(&widget))
        return combo->text();
    if (auto* line = qobject_cast<const LineField*>(&widget))
        return line->text();
    return dynamic_cast<const TextField&>(widget).text().replace(u'\n', QStringLiteral("\r\n"));
}

void TypingUser::comeBack() {
    form_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form_));
}

} // namespace quillford
