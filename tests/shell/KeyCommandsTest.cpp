#include "shell/KeyCommands.h"

#include "shell/FormFixture.h"
#include "support/ModalUser.h"

#include <QDialog>
#include <QLineEdit>
#include <QSignalSpy>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class KeyCommandsTest : public FormFixture {
protected:
    KeyCommandsTest() {
        field.setObjectName(u"txtFileNo"_s);
        field.show();
        field.setFocus();
    }

    [[nodiscard]] qsizetype commands() const {
        return fileMenu.count() + helpMenu.count() + saves.count() + opens.count() + news.count();
    }

    QLineEdit field{&form.panel(0)};
    QSignalSpy fileMenu{&form.keys(), &KeyCommands::fileMenuWanted};
    QSignalSpy helpMenu{&form.keys(), &KeyCommands::helpMenuWanted};
    QSignalSpy saves{&form.keys(), &KeyCommands::saveWanted};
    QSignalSpy opens{&form.keys(), &KeyCommands::openWanted};
    QSignalSpy news{&form.keys(), &KeyCommands::newWanted};
};

} // namespace

TEST_F(KeyCommandsTest, five_keys_are_commands) {
    QTest::keyClick(&field, Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(fileMenu.count(), 1);
    QTest::keyClick(&field, Qt::Key_H, Qt::AltModifier);
    EXPECT_EQ(helpMenu.count(), 1);
    QTest::keyClick(&field, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(saves.count(), 1);
    QTest::keyClick(&field, Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(opens.count(), 1);
    QTest::keyClick(&field, Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(news.count(), 1);
    EXPECT_EQ(commands(), 5);
}

TEST_F(KeyCommandsTest, a_modifier_counts_alone) {
    for (const Qt::Key key : {Qt::Key_S, Qt::Key_O, Qt::Key_N}) {
        QTest::keyClick(&field, key, Qt::ControlModifier | Qt::ShiftModifier);
        QTest::keyClick(&field, key, Qt::ControlModifier | Qt::AltModifier);
        QTest::keyClick(&field, key, Qt::AltModifier);
        QTest::keyClick(&field, key);
    }
    for (const Qt::Key key : {Qt::Key_F, Qt::Key_H}) {
        QTest::keyClick(&field, key, Qt::AltModifier | Qt::ShiftModifier);
        QTest::keyClick(&field, key, Qt::ControlModifier);
        QTest::keyClick(&field, key);
    }
    EXPECT_EQ(commands(), 0);
}

TEST_F(KeyCommandsTest, a_command_is_seen_before_the_field_and_does_not_reach_it) {
    class Watcher final : public QObject {
    public:
        QList<int> keys;

    protected:
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() == QEvent::KeyPress)
                keys.append(static_cast<QKeyEvent*>(event)->key());
            return false;
        }
    } watcher;

    field.installEventFilter(&watcher);
    QTest::keyClick(&field, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(saves.count(), 1);
    EXPECT_EQ(watcher.keys, QList<int>{Qt::Key_Control});
    QTest::keyClick(&field, Qt::Key_X);
    EXPECT_EQ(watcher.keys.last(), Qt::Key_X);
    EXPECT_EQ(field.text(), u"x"_s);
}

TEST_F(KeyCommandsTest, a_key_counts_once_wherever_the_focus_is) {
    form.panel(0).setFocusPolicy(Qt::ClickFocus);
    form.panel(0).setFocus();
    QTest::keyClick(&form.panel(0), Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(news.count(), 1);
    form.panel(0).clearFocus();
    QTest::keyClick(&form, Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(news.count(), 2);
}

TEST_F(KeyCommandsTest, a_window_that_stands_before_the_form_keeps_its_keys) {
    QDialog dialog(&form);
    QLineEdit name(&dialog);
    ModalUser user;
    user.meets<QDialog>([&](QDialog& up) {
        QTest::keyClick(&name, Qt::Key_S, Qt::ControlModifier);
        QTest::keyClick(&up, Qt::Key_N, Qt::ControlModifier);
        QTest::keyClick(&field, Qt::Key_O, Qt::ControlModifier);
        up.accept();
    });
    dialog.exec();
    EXPECT_EQ(commands(), 0);
    QTest::keyClick(&field, Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(opens.count(), 1);
}

TEST_F(KeyCommandsTest, a_window_beside_the_form_keeps_its_keys) {
    QLineEdit other;
    other.show();
    QTest::keyClick(&other, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(commands(), 0);
}
