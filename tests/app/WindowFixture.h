#pragma once

#include "app/Program.h"
#include "controls/ClickLabel.h"
#include "controls/LineField.h"
#include "controls/TextField.h"
#include "controls/myImageButton.h"
#include "shell/TabPicture.h"
#include "support/ModalUser.h"
#include "support/PrintQt.h"
#include "support/Themed.h"

#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace quillford {

/// The whole program on the pretended screen, in an empty home folder, driven through its widgets.
class WindowFixture : public testing::Test {
protected:
    WindowFixture() {
        QDir home(qEnvironmentVariable("HOME"));
        home.removeRecursively();
        EXPECT_TRUE(home.mkpath(QStringLiteral(".")));
    }

    /// Starts the program, which may have run before, and waits for its window.
    void start(const QStringList& arguments = {}) {
        program_.reset();
        program_ = std::make_unique<Program>();
        ASSERT_TRUE(program_->start(arguments));
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form()));
    }

    /// Starts with a project in which every section is complete.
    void startWithSample() {
        const QString path = folder_.filePath(QStringLiteral("easel.ivd"));
        QFile::remove(path);
        ASSERT_TRUE(QFile::copy(QStringLiteral(QUILLFORD_SAMPLE_PROJECT), path));
        start({path});
    }

    void startWithNewProject() {
        start();
        click(QStringLiteral("lblRecentPatents(0)"));
    }

    [[nodiscard]] QString samplePath() const {
        return folder_.filePath(QStringLiteral("easel.ivd"));
    }

    [[nodiscard]] frmMain1& form() { return program_->window()->form(); }

    template <typename Control = QWidget>
    [[nodiscard]] Control& control(const QString& name) {
        auto* found = form().findChild<Control*>(name);
        if (!found)
            throw std::runtime_error("there is no control " + name.toStdString());
        return *found;
    }

    void click(const QString& name) { click(control(name)); }

    static void click(QWidget& clicked) {
        auto* face = clicked.findChild<QWidget*>(QStringLiteral("picbutton"));
        QTest::mouseClick(face ? face : &clicked, Qt::LeftButton);
    }

    static void press(const QWidget& dialog, const QString& button) {
        click(*dialog.findChild<QWidget*>(button));
    }

    static void answer(QMessageBox& box, QMessageBox::StandardButton button) {
        QTest::mouseClick(box.button(button), Qt::LeftButton);
    }

    [[nodiscard]] TabPicture& tab(int index) {
        return control<TabPicture>(QStringLiteral("picTab(%1)").arg(index));
    }

    [[nodiscard]] QWidget& panel(int index) {
        return control(QStringLiteral("picContainer(%1)").arg(index));
    }

    /// The tab whose picture is shown as selected; -1 when that is not exactly one.
    [[nodiscard]] int currentTab() {
        int current = -1;
        for (int i = 0; i < 10; ++i)
            if (tab(i).look() == TabLook::CompleteSelected ||
                tab(i).look() == TabLook::IncompleteSelected)
                current = current < 0 ? i : 10;
        return current < 10 ? current : -1;
    }

    /// The number of the panel that is enabled; -1 when that is not exactly one.
    [[nodiscard]] int enabledPanel() {
        int enabled = -1;
        for (int i = 0; i < 10; ++i)
            if (panel(i).isEnabled())
                enabled = enabled < 0 ? i : 10;
        return enabled < 10 ? enabled : -1;
    }

    [[nodiscard]] LineField& line(const QString& name) { return control<LineField>(name); }

    const Themed theme_;
    QTemporaryDir folder_;
    std::unique_ptr<Program> program_;
    ModalUser user;
};

} // namespace quillford
