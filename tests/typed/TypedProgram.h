#pragma once

#include "app/Program.h"
#include "support/PrintQt.h"
#include "support/ScopedEnvironment.h"
#include "typed/AnsweredWindows.h"
#include "typed/TypingUser.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <memory>

namespace quillford {

/// The whole program, started by its user and left on the first section of a new project.
class TypedProgram : public testing::Test {
protected:
    TypedProgram();

    /// Moves to a section by its picture.
    void clickTab(int tab);

    /// Chooses a count from its list and waits for the panels that follow.
    void chooseCount(const QString& list, int count);

    /// Saves the project under this name by the keys, and waits.
    void saveAs(const QString& path);

    QTemporaryDir folder; ///< for the test's files
    AnsweredWindows windows;

private:
    /// The settings of another test, such as a window that does not come again, do not count.
    const ScopedEnvironment settings_{"XDG_CONFIG_HOME", folder.path().toUtf8()};

    /// Comes before the first widget, which takes its font from the application.
    struct Look {
        Look();
    } look_;

    Program program_;

protected:
    std::unique_ptr<TypingUser> user;
};

} // namespace quillford
