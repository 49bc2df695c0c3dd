#include "shell/dialogs/QtUserPrompts.h"

#include "shell/dialogs/msgWindow.h"
#include "support/Files.h"
#include "support/ModalUser.h"
#include "support/PrintQt.h"

#include <QAbstractButton>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

using Icon = UserPrompts::Icon;
using Answer = UserPrompts::Answer;

class QtUserPromptsTest : public testing::Test {
protected:
    static void press(QMessageBox& box, QMessageBox::StandardButton button) {
        QTest::mouseClick(box.button(button), Qt::LeftButton);
    }

    static void enterName(QFileDialog& dialog, const QString& name) {
        dialog.findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(name);
        QMetaObject::invokeMethod(&dialog, "accept");
    }

    [[nodiscard]] QString path(const QString& name) const { return folder.filePath(name); }

    [[nodiscard]] UserPrompts::FileQuestion question(const QString& name = {}) const {
        return {folder.path(), name, u"Quillford File"_s, u"*.ivd"_s};
    }

    QTemporaryDir folder;
    ProjectState state;
    QtUserPrompts prompts{state};
    ModalUser user;
};

} // namespace

TEST_F(QtUserPromptsTest, a_message_is_a_box_with_this_title_text_and_icon_and_one_button) {
    user.meets<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), u"Error"_s);
        EXPECT_EQ(box.text(), u"File \"x.ivd\" does not exists"_s);
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        press(box, QMessageBox::Ok);
    });
    prompts.showMessage(Icon::Exclamation, u"Error"_s, u"File \"x.ivd\" does not exists"_s);
}

TEST_F(QtUserPromptsTest, each_icon_has_its_sign) {
    const std::vector<std::pair<Icon, QMessageBox::Icon>> icons{
        {Icon::None, QMessageBox::NoIcon},
        {Icon::Information, QMessageBox::Information},
        {Icon::Question, QMessageBox::Question},
        {Icon::Exclamation, QMessageBox::Warning},
        {Icon::Critical, QMessageBox::Critical}};
    for (const auto& [icon, shown] : icons) {
        user.meets<QMessageBox>([shown = shown](QMessageBox& box) {
            EXPECT_EQ(box.icon(), shown);
            box.accept();
        });
        prompts.showMessage(icon, u"t"_s, u"x"_s);
    }
}

TEST_F(QtUserPromptsTest, a_name_that_looks_like_markup_is_shown_as_it_stands) {
    user.meets<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.text(), u"<b>x</b>.ivd"_s);
        box.accept();
    });
    prompts.showMessage(Icon::None, u"Error"_s, u"<b>x</b>.ivd"_s);
}

TEST_F(QtUserPromptsTest, yes_and_no_are_answered_by_their_buttons) {
    user.meets<QMessageBox>([](QMessageBox& box) {
            EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
            press(box, QMessageBox::Yes);
        })
        .meets<QMessageBox>([](QMessageBox& box) { press(box, QMessageBox::No); });
    EXPECT_TRUE(prompts.askYesNo(Icon::Question, u"Save Project?"_s, u"now?"_s));
    EXPECT_FALSE(prompts.askYesNo(Icon::Question, u"Save Project?"_s, u"now?"_s));
}

TEST_F(QtUserPromptsTest, yes_no_and_cancel_are_answered_by_their_buttons) {
    for (const auto& [button, answer] :
         {std::pair(QMessageBox::Yes, Answer::Yes), std::pair(QMessageBox::No, Answer::No),
          std::pair(QMessageBox::Cancel, Answer::Cancel)}) {
        user.meets<QMessageBox>([button = button](QMessageBox& box) { press(box, button); });
        EXPECT_EQ(prompts.askYesNoCancel(Icon::Question, u"t"_s, u"x"_s), answer);
    }
}

TEST_F(QtUserPromptsTest, a_box_that_is_closed_otherwise_says_no_or_cancel) {
    const auto escape = [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); };
    const auto close = [](QMessageBox& box) { box.close(); };
    user.meets<QMessageBox>(escape).meets<QMessageBox>(close).meets<QMessageBox>(escape);
    EXPECT_FALSE(prompts.askYesNo(Icon::Question, u"t"_s, u"x"_s));
    EXPECT_FALSE(prompts.askYesNo(Icon::Question, u"t"_s, u"x"_s));
    EXPECT_EQ(prompts.askYesNoCancel(Icon::Question, u"t"_s, u"x"_s), Answer::Cancel);
}

TEST_F(QtUserPromptsTest, a_dialog_to_open_starts_in_the_folder_with_the_filter) {
    user.meets<QFileDialog>([this](QFileDialog& dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(dialog.directory().absolutePath(), folder.path());
        EXPECT_EQ(dialog.nameFilters(), QStringList{u"Quillford File (*.ivd)"_s});
        dialog.reject();
    });
    EXPECT_EQ(prompts.chooseFileToOpen(question()), QString());
}

TEST_F(QtUserPromptsTest, several_patterns_of_one_filter_are_shown_together) {
    user.meets<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.nameFilters(), QStringList{u"Pictures (*.jpg *.bmp)"_s});
        dialog.reject();
    });
    EXPECT_EQ(prompts.chooseFileToOpen({folder.path(), {}, u"Pictures"_s, u"*.jpg;*.bmp"_s}),
              QString());
}

TEST_F(QtUserPromptsTest, a_file_is_chosen_by_its_name) {
    writeFile(path(u"my easel é.ivd"_s));
    user.meets<QFileDialog>([](QFileDialog& dialog) { enterName(dialog, u"my easel é.ivd"_s); });
    EXPECT_EQ(prompts.chooseFileToOpen(question()), path(u"my easel é.ivd"_s));
}

TEST_F(QtUserPromptsTest, a_file_with_quotes_in_its_name_is_chosen_in_the_list) {
    const QString name = u"my \"easel\".ivd"_s;
    writeFile(path(name));
    user.meets<QFileDialog>([&](QFileDialog& dialog) {
        auto& list = *dialog.findChild<QListView*>(u"listView"_s);
        const auto found = [&] {
            return list.model()->match(list.model()->index(0, 0, list.rootIndex()), Qt::DisplayRole,
                                       name);
        };
        EXPECT_TRUE(QTest::qWaitFor([&] { return !found().isEmpty(); }));
        const QModelIndex row = found().value(0);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(row).center());
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(prompts.chooseFileToOpen(question()), path(name));
}

TEST_F(QtUserPromptsTest, a_name_that_is_typed_is_answered_whether_or_not_there_is_such_a_file) {
    writeFile(path(u"notes.txt"_s));
    user.meets<QFileDialog>([](QFileDialog& dialog) { enterName(dialog, u"missing.ivd"_s); })
        .meets<QFileDialog>([](QFileDialog& dialog) { enterName(dialog, u"notes.txt"_s); });
    EXPECT_EQ(prompts.chooseFileToOpen(question()), path(u"missing.ivd"_s));
    EXPECT_EQ(prompts.chooseFileToOpen(question()), path(u"notes.txt"_s))
        << "the filter does not bind what is typed";
}

TEST_F(QtUserPromptsTest, a_dialog_to_save_proposes_the_name) {
    user.meets<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(dialog.findChild<QLineEdit*>(u"fileNameEdit"_s)->text(), u"easel.ivd"_s);
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(prompts.chooseFileToSave(question(u"easel.ivd"_s)), path(u"easel.ivd"_s));
}

TEST_F(QtUserPromptsTest, a_proposed_path_brings_its_folder_with_it) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"other"_s));
    user.meets<QFileDialog>([this](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().absolutePath(), path(u"other"_s));
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(prompts.chooseFileToSave(question(path(u"other/easel.ivd"_s))),
              path(u"other/easel.ivd"_s));
}

TEST_F(QtUserPromptsTest, a_save_over_a_file_is_asked_about_first) {
    writeFile(path(u"easel.ivd"_s), "old");
    user.meets<QFileDialog>([](QFileDialog& dialog) { enterName(dialog, u"easel.ivd"_s); })
        .meets<QMessageBox>([](QMessageBox& box) { press(box, QMessageBox::No); })
        .meets<QFileDialog>([](QFileDialog& dialog) { enterName(dialog, u"easel.ivd"_s); })
        .meets<QMessageBox>([](QMessageBox& box) { press(box, QMessageBox::Yes); });
    EXPECT_EQ(prompts.chooseFileToSave(question()), path(u"easel.ivd"_s));
    EXPECT_EQ(contentOf(path(u"easel.ivd"_s)), "old") << "to ask writes nothing";
}

TEST_F(QtUserPromptsTest, while_a_box_is_up_a_command_is_at_work) {
    const auto check = [this](QDialog& up) {
        EXPECT_EQ(state.commandsRunning, 1);
        up.reject();
    };
    const auto unheard = [](bool) {};
    for (int i = 0; i < 8; ++i)
        user.meets<QDialog>(check);
    prompts.showMessage(Icon::None, u"t"_s, u"x"_s);
    EXPECT_FALSE(prompts.askYesNo(Icon::None, u"t"_s, u"x"_s));
    EXPECT_EQ(prompts.askYesNoCancel(Icon::None, u"t"_s, u"x"_s), Answer::Cancel);
    EXPECT_EQ(prompts.chooseFileToOpen(question()), QString());
    EXPECT_EQ(prompts.chooseFileToSave(question()), QString());
    EXPECT_FALSE(prompts.showMsgWindow(unheard));
    prompts.showTab4MsgWindow(unheard);
    EXPECT_EQ(prompts.showExportToFileMsgWindow(true), UserPrompts::ExportChoice::Cancel);
    EXPECT_EQ(state.commandsRunning, 0);
}

TEST_F(QtUserPromptsTest, boxes_stand_before_the_window_that_is_named_until_it_goes) {
    auto window = std::make_unique<QWidget>();
    prompts.setParent(window.get());
    user.meets<QMessageBox>([&](QMessageBox& box) {
            EXPECT_EQ(box.parentWidget(), window.get());
            box.accept();
        })
        .meets<QMessageBox>([](QMessageBox& box) {
            EXPECT_EQ(box.parentWidget(), nullptr);
            box.accept();
        });
    prompts.showMessage(Icon::None, u"t"_s, u"x"_s);
    window.reset();
    prompts.showMessage(Icon::None, u"t"_s, u"x"_s);
}

TEST_F(QtUserPromptsTest, a_box_that_comes_while_a_dialog_is_up_stands_before_that) {
    QDialog dialog;
    user.meets<QDialog>([this](QDialog& up) {
            prompts.showMessage(Icon::None, u"t"_s, u"x"_s);
            up.accept();
        })
        .meets<QMessageBox>([&dialog](QMessageBox& box) {
            EXPECT_EQ(box.parentWidget(), &dialog);
            box.accept();
        });
    dialog.exec();
}
