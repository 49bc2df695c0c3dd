#include "typed/AnsweredWindows.h"

#include "shell/dialogs/msgWindow.h"
#include "support/PrintQt.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QtTest>

#include <gtest/gtest.h>

namespace quillford {

namespace {

/// A window that opens has the focus on its main button; others are reached by the Tab key.
void pressByKeys(QWidget& window, const QWidget& control, Qt::Key key) {
    constexpr int MostControls = 20;
    for (int i = 0; i < MostControls && window.focusWidget() != &control; ++i)
        QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, Qt::Key_Tab);
    ASSERT_EQ(window.focusWidget(), &control) << "the Tab key does not reach a control";
    QTest::keyClick(window.focusWidget(), key);
}

} // namespace

AnsweredWindows::AnsweredWindows() {
    timer_.setInterval(1);
    connect(&timer_, &QTimer::timeout, this, &AnsweredWindows::look);
    timer_.start();
}

AnsweredWindows::~AnsweredWindows() {
    for (const Step& step : steps_)
        ADD_FAILURE() << "did not come up: " << qPrintable(step.what);
}

void AnsweredWindows::expectMessageWindow(const QString& title, const QString& button,
                                          bool tickBox) {
    steps_.push_back({title,
                      [title](QWidget& shown) {
                          return qobject_cast<msgWindow*>(&shown) && shown.windowTitle() == title;
                      },
                      [button, tickBox](QWidget& shown) {
                          if (tickBox)
                              pressByKeys(
                                  shown, *shown.findChild<QCheckBox*>(QStringLiteral("chkShowMsg")),
                                  Qt::Key_Space);
                          pressByKeys(shown, *shown.findChild<QWidget*>(button), Qt::Key_Return);
                      }});
}

void AnsweredWindows::expectBox(const QString& title, const QString& text,
                                QMessageBox::StandardButton button) {
    steps_.push_back({title,
                      [title, text](QWidget& shown) {
                          auto* const box = qobject_cast<QMessageBox*>(&shown);
                          return box && box->windowTitle() == title && box->text() == text;
                      },
                      [button](QWidget& shown) {
                          auto& box = static_cast<QMessageBox&>(shown);
                          pressByKeys(shown, *box.button(button), Qt::Key_Space);
                      }});
}

void AnsweredWindows::expectFileDialog(const QString& path) {
    steps_.push_back({QStringLiteral("a file dialog for ") + path,
                      [](QWidget& shown) { return qobject_cast<QFileDialog*>(&shown) != nullptr; },
                      [path](QWidget& shown) {
                          auto* const name =
                              shown.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
                          QTest::keyClick(name, Qt::Key_A, Qt::ControlModifier);
                          QTest::keyClicks(name, path);
                          ASSERT_EQ(name->text(), path);
                          QTest::keyClick(name, Qt::Key_Return);
                      }});
}

void AnsweredWindows::look() {
    QWidget* const shown = QApplication::activeModalWidget();
    if (!shown || !shown->isVisible() || answering_)
        return;
    // Without a window manager nobody else gives it the keys.
    if (!shown->isActiveWindow())
        return shown->activateWindow();
    // An answer may open a further window, which then stands within this call.
    if (steps_.empty() || !steps_.front().fits(*shown))
        return fail(*shown);
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    const QScopedValueRollback answering(answering_, true);
    step.answer(*shown);
}

void AnsweredWindows::fail(QWidget& shown) {
    auto* const box = qobject_cast<QMessageBox*>(&shown);
    ADD_FAILURE() << "not expected: " << qPrintable(shown.windowTitle()) << ": "
                  << (box ? qPrintable(box->text()) : shown.metaObject()->className())
                  << "; expected: "
                  << (steps_.empty() ? "nothing" : qPrintable(steps_.front().what));
    shown.close();
}

} // namespace quillford
