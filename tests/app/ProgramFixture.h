#pragma once

#include "app/Program.h"
#include "support/PrintQt.h"

#include <QAction>
#include <QDeadlineTimer>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>
#include <QtTest>

#include <deque>
#include <functional>
#include <gtest/gtest.h>

namespace quillford {

using namespace Qt::Literals::StringLiterals;

/// The whole program before a user without a display. His home is a folder of each test's own; what
/// the desktop is asked to open is written down and not opened.
class ProgramFixture : public testing::Test {
protected:
    using Answer = std::function<void(QDialog&)>;

    ProgramFixture();
    ~ProgramFixture() override;

    /// Starts the program and shows its form.
    void start(const QStringList& arguments = {});

    /// The program is gone at once, as if it were killed: nobody asks, nothing is put in order.
    void kill() { program_.reset(); }

    [[nodiscard]] frmMain1& form() { return program_->window()->form(); }

    template <typename Control = QWidget>
    [[nodiscard]] Control& control(const QString& name) {
        return *form().findChild<Control*>(name);
    }

    void click(const QString& name) { clickOn(control(name)); }

    /// A click on a control, also on one of a dialog.
    static void clickOn(QWidget& control);

    void type(const QString& name, const QString& text);

    /// What stands in a field of text.
    [[nodiscard]] QString shown(const QString& name);

    /// Opens the File menu, lets `look` see it, and closes it.
    void openFileMenu(const std::function<void()>& look = [] {});

    /// Opens the File menu and chooses one of its entries, which has to be enabled.
    void choose(const QString& entry);

    [[nodiscard]] QAction& menuEntry(const QString& name) { return control<QAction>(name); }

    /// The next dialog that comes up has to have this title and is answered so. A dialog that
    /// nobody has told of fails the test and is closed.
    void whenAsked(const QString& title, const Answer& answer);
    void whenAsked(const QString& title, QMessageBox::StandardButton button);
    void whenAskedForFile(const QString& path);

    /// As many ticks of the timer as lead to a save.
    void letTimerSave();

    [[nodiscard]] QString place(const QString& name) const { return home_.filePath(name); }

    /// The folder for working copies and what lies in it.
    [[nodiscard]] QString drafts() const;
    [[nodiscard]] QStringList draftFiles() const;

    /// A copy of the sample, complete project in the user's home.
    [[nodiscard]] QString sampleProject(const QString& name = u"easel.ivd"_s);

    /// What the desktop was asked to open, in their order.
    [[nodiscard]] QStringList opened() const;

private:
    struct Expected {
        QString title;
        Answer answer;
    };

    void answerDialogs();

    QTemporaryDir home_;
    QByteArray path_ = qgetenv("PATH");
    std::deque<Expected> expected_;
    QPointer<QDialog> answered_;
    QDeadlineTimer patience_;
    QTimer user_;
    std::unique_ptr<Program> program_;
};

} // namespace quillford
