#pragma once

#include "app/Program.h"
#include "controls/LineField.h"
#include "controls/TextField.h"
#include "shell/TabPicture.h"
#include "support/ModalUser.h"
#include "support/PrintQt.h"
#include "support/ScopedEnvironment.h"
#include "support/Themed.h"

#include <QAction>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace quillford {

using namespace Qt::Literals::StringLiterals;

/// The whole program before a user without a display. His home is an empty folder of each test's
/// own; what the desktop is asked to open is written down and not opened, and there is no printer.
class ProgramFixture : public testing::Test {
protected:
    using Answer = ModalUser::Answer;

    ProgramFixture();

    /// Starts the program and shows its form. One that runs already is killed before.
    void start(const QStringList& arguments = {});

    /// The same with the sample, in which every section is complete.
    void startWithSample() { start({sampleProject()}); }

    /// The same, left on the first section of a new project.
    void startWithNewProject();

    /// The program is gone at once, as if it were killed: nobody asks, nothing is put in order.
    void kill() { program_.reset(); }

    [[nodiscard]] frmMain1& form() { return program_->window()->form(); }

    /// The control with this name, "txtElementName(2)"; a name that is not there fails the test.
    template <typename Control = QWidget>
    [[nodiscard]] Control& control(const QString& name) {
        if (auto* const found = form().findChild<Control*>(name))
            return *found;
        throw std::runtime_error("there is no control " + name.toStdString());
    }

    [[nodiscard]] LineField& line(const QString& name) { return control<LineField>(name); }

    [[nodiscard]] TabPicture& tab(int index);
    [[nodiscard]] QWidget& panel(int index);

    /// The tab whose picture is shown as selected; -1 when that is not exactly one.
    [[nodiscard]] int currentTab();

    /// The number of the panel that is enabled; -1 when that is not exactly one.
    [[nodiscard]] int enabledPanel();

    void click(const QString& name) { clickOn(control(name)); }

    /// A click on a control, also on one of a dialog.
    static void clickOn(QWidget& control);

    /// The same on the control of a dialog that has this name.
    static void press(const QWidget& dialog, const QString& name);

    /// An answer by keys: presses this button of a dialog, and ticks the box for "not again"
    /// before.
    [[nodiscard]] static Answer presses(const QString& button);
    [[nodiscard]] static Answer ticksAndPresses(const QString& button);

    void type(const QString& name, const QString& text);

    /// What stands in a field of text.
    [[nodiscard]] QString shown(const QString& name);

    /// Opens the File menu, lets `look` see it, and closes it.
    void openFileMenu(const std::function<void()>& look = [] {});

    /// Opens the File menu and chooses one of its entries, which has to be enabled.
    void choose(const QString& entry);

    [[nodiscard]] QAction& menuEntry(const QString& name) { return control<QAction>(name); }

    /// The next dialog that comes up has to have this title and is answered so.
    void whenAsked(const QString& title, const Answer& answer) { user.isAsked(title, answer); }

    /// The same with a box, whose text has to be this one where it is told.
    void whenAsked(const QString& title, QMessageBox::StandardButton button,
                   const std::optional<QString>& text = {}) {
        user.isAsked(title, button, text);
    }

    /// A path is typed into the file dialog that comes up next; with an empty one it is cancelled.
    void whenAskedForFile(const QString& path) { user.isAskedForFile(path); }

    /// The same in the print dialog: the pages go into this file.
    void whenAskedToPrint(const QString& path) { user.isAskedToPrint(path); }

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
    const Themed theme_;
    QTemporaryDir home_;
    const ScopedEnvironment homeFolder_{"HOME", home_.path().toUtf8()};
    const ScopedEnvironment settings_{"XDG_CONFIG_HOME", place(u"settings"_s).toUtf8()};
    const ScopedEnvironment data_{"XDG_DATA_HOME", place(u"data"_s).toUtf8()};
    const ScopedEnvironment cache_{"XDG_CACHE_HOME", place(u"cache"_s).toUtf8()};
    const ScopedEnvironment noPrinters_{"CUPS_SERVER", QByteArray("/nowhere/cups.sock")};
    const ScopedEnvironment path_{"PATH", place(u"bin:"_s).toUtf8() + qgetenv("PATH")};

protected:
    ModalUser user;

private:
    std::unique_ptr<Program> program_;
};

} // namespace quillford
