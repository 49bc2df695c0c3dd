#include "support/ModalUser.h"

#include "support/PrintQt.h"

#include <QAbstractButton>
#include <QFileDialog>
#include <QLineEdit>
#include <QPrintDialog>
#include <QTest>

#include <chrono>

namespace quillford {

namespace {

constexpr std::chrono::milliseconds LookInterval{1};
constexpr std::chrono::seconds Patience{10};

/// The splash goes by itself.
bool waitsForTheUser(const QWidget* shown) {
    return shown && shown->isVisible() && shown->objectName() != QStringLiteral("frmSplash");
}

/// Into the line with this name.
void typePath(QWidget& dialog, const QString& lineName, const QString& path) {
    if (path.isEmpty()) {
        QTest::keyClick(&dialog, Qt::Key_Escape);
        return;
    }
    auto* const name = dialog.findChild<QLineEdit*>(lineName);
    ASSERT_TRUE(name) << qPrintable(lineName);
    QTest::keyClick(name, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(name, path);
    ASSERT_EQ(name->text(), path);
    QTest::keyClick(name, Qt::Key_Return);
}

} // namespace

ModalUser::ModalUser() {
    lookAgain();
}

ModalUser::~ModalUser() {
    for (const Step& step : steps_)
        ADD_FAILURE() << "did not come up: " << qPrintable(step.what);
}

ModalUser& ModalUser::isAsked(const QString& title, const Answer& answer) {
    steps_.push_back(dialogStep(title, answer));
    return *this;
}

ModalUser& ModalUser::passes(const QString& title, const Answer& answer) {
    passed_.push_back(dialogStep(title, answer));
    return *this;
}

ModalUser::Step ModalUser::dialogStep(const QString& title, const Answer& answer) {
    return {title,
            [title](QWidget& shown) {
                return qobject_cast<QDialog*>(&shown) && shown.windowTitle() == title;
            },
            [answer](QWidget& shown) { answer(*qobject_cast<QDialog*>(&shown)); }};
}

ModalUser& ModalUser::isAsked(const QString& title, QMessageBox::StandardButton button,
                              const std::optional<QString>& text) {
    return isAsked(title, [button, text](QDialog& dialog) {
        auto* const box = qobject_cast<QMessageBox*>(&dialog);
        EXPECT_EQ(box && text ? box->text() : QString(), text.value_or(QString()));
        pressByKeys(dialog, box ? box->button(button) : nullptr);
    });
}

ModalUser& ModalUser::isAskedForFile(const QString& path) {
    return meets<QFileDialog>(
        [path](QWidget& dialog) { typePath(dialog, QStringLiteral("fileNameEdit"), path); });
}

ModalUser& ModalUser::isAskedToPrint(const QString& path) {
    return meets<QPrintDialog>(
        [path](QWidget& dialog) { typePath(dialog, QStringLiteral("filename"), path); });
}

void ModalUser::pressByKeys(QWidget& window, QWidget* control) {
    constexpr int MostControls = 20;
    ASSERT_TRUE(control) << "the window has no such control";
    for (int i = 0; i < MostControls && window.focusWidget() != control; ++i)
        QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, Qt::Key_Tab);
    ASSERT_EQ(window.focusWidget(), control) << "the Tab key does not reach a control";
    QTest::keyClick(control, Qt::Key_Space);
}

ModalUser& ModalUser::expects(const QString& what, const std::function<bool(QWidget&)>& fits,
                              const std::function<void(QWidget&)>& act) {
    steps_.push_back({what, fits, act});
    return *this;
}

/// One look at a time: a timer that repeats stands still within a window that its own tick opens.
void ModalUser::lookAgain() {
    QTimer::singleShot(LookInterval, this, &ModalUser::look);
}

void ModalUser::look() {
    lookAgain();
    QWidget* const shown = QApplication::activeModalWidget();
    if (!waitsForTheUser(shown))
        return;
    // Without a window manager nobody else gives it the keys.
    if (!shown->isActiveWindow())
        shown->activateWindow();
    else
        meet(*shown);
}

std::optional<ModalUser::Step> ModalUser::takeStepFor(QWidget& shown) {
    if (!steps_.empty() && steps_.front().fits(shown)) {
        Step step = std::move(steps_.front());
        steps_.pop_front();
        return step;
    }
    for (const Step& step : passed_)
        if (step.fits(shown))
            return step;
    return std::nullopt;
}

void ModalUser::meet(QWidget& shown) {
    const bool isNew = met_ != &shown;
    if (const std::optional<Step> step = takeStepFor(shown)) {
        met_ = &shown;
        patience_ = QDeadlineTimer(Patience);
        step->act(shown);
    } else if (isNew || patience_.hasExpired()) {
        met_ = &shown;
        patience_ = QDeadlineTimer(Patience);
        refuse(shown);
    }
}

void ModalUser::refuse(QWidget& shown) const {
    const auto* const box = qobject_cast<QMessageBox*>(&shown);
    ADD_FAILURE() << "not expected: " << qPrintable(shown.windowTitle()) << ": "
                  << (box ? qPrintable(box->text()) : shown.metaObject()->className())
                  << "; expected: "
                  << (steps_.empty() ? "nothing" : qPrintable(steps_.front().what));
    if (auto* const dialog = qobject_cast<QDialog*>(&shown))
        dialog->reject();
    else
        shown.close();
}

} // namespace quillford
