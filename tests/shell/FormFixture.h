#pragma once

#include "shell/frmMain1.h"
#include "support/PrintQt.h"
#include "support/Themed.h"

#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace quillford {

/// The main form alone, on the screen and active, with nothing behind it.
class FormFixture : public testing::Test {
protected:
    FormFixture() {
        form.show();
        form.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
    }

    template <typename Control = QWidget>
    [[nodiscard]] Control& control(const QString& name) {
        return *form.findChild<Control*>(name);
    }

    const Themed theme;
    QTemporaryDir programFolder;
    FocusOrder order;
    frmMain1 form{programFolder.path() + u'/', order};
};

} // namespace quillford
