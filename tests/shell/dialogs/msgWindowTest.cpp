#include "shell/dialogs/msgWindow.h"

#include "controls/ClickLabel.h"
#include "support/ModalUser.h"
#include "support/PrintQt.h"
#include "support/Themed.h"

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <QTest>

#include <vector>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

using Choice = UserPrompts::ExportChoice;

class msgWindowTest : public testing::Test {
protected:
    template <typename Control = QWidget>
    static Control& part(const QWidget& window, const QString& name) {
        return *window.findChild<Control*>(name);
    }

    static void press(const QWidget& window, const QString& button) {
        QTest::mouseClick(&part(part(window, button), u"picbutton"_s), Qt::LeftButton);
    }

    /// The parts that belong to some arrangement only and are up.
    static QStringList shown(const QWidget& window) {
        QStringList names;
        for (const QString& name :
             {u"cmdYes"_s, u"cmdNo"_s, u"cmdOK"_s, u"cmdExport"_s, u"cmdCancel"_s, u"chkShowMsg"_s,
              u"optFormat(0)"_s, u"optFormat(1)"_s, u"lblExportToFileFormat"_s})
            if (part(window, name).isVisible())
                names.append(name);
        return names;
    }

    /// What holds of every arrangement: nothing stands outside the window or on something else.
    static void expectWellPlaced(const QWidget& window) {
        const QStringList names = shown(window) + QStringList{u"lblShowMessage"_s, u"imgPencil"_s};
        for (const QString& name : names) {
            EXPECT_TRUE(window.rect().contains(part(window, name).geometry())) << qPrintable(name);
            for (const QString& other : names)
                EXPECT_TRUE(
                    name == other ||
                    !part(window, name).geometry().intersects(part(window, other).geometry()))
                    << qPrintable(name + u" and "_s + other);
        }
        const auto& text = part<QLabel>(window, u"lblShowMessage"_s);
        EXPECT_LE(text.heightForWidth(text.width()), text.height());
    }

    bool askAboutSection() {
        return msgWindow(nullptr).showMsgWindow([this](bool on) { changes.push_back(on); });
    }

    void adviseAboutDrawings() {
        msgWindow(nullptr).showTab4MsgWindow([this](bool on) { changes.push_back(on); });
    }

    static Choice askForFormat(bool wordInstalled = true) {
        return msgWindow(nullptr).showExportToFileMsgWindow(wordInstalled);
    }

    const Themed theme;
    std::vector<bool> changes;
    ModalUser user;
};

} // namespace

TEST_F(msgWindowTest, an_incomplete_section_is_told_with_yes_no_and_the_box) {
    user.meets<msgWindow>([](msgWindow& window) {
        EXPECT_EQ(window.windowTitle(), u"Section Not Complete"_s);
        EXPECT_EQ(part<QLabel>(window, u"lblTitleBar"_s).text(), u"Section Not Complete"_s);
        EXPECT_EQ(
            part<QLabel>(window, u"lblShowMessage"_s).text(),
            u"Certain required fields have not been completed in this section. You will not be able to preview your final draft until all required fields are completed. Incomplete sections will be marked with      until they have been completed. Do you wish to continue?"_s);
        EXPECT_EQ(shown(window), (QStringList{u"cmdYes"_s, u"cmdNo"_s, u"chkShowMsg"_s}));
        expectWellPlaced(window);
        press(window, u"cmdYes"_s);
    });
    EXPECT_TRUE(askAboutSection());
}

TEST_F(msgWindowTest, the_gap_in_the_text_holds_the_mark_of_an_incomplete_section) {
    user.meets<msgWindow>([](msgWindow& window) {
        const auto& text = part<QLabel>(window, u"lblShowMessage"_s);
        const QWidget& mark = part(window, u"imgMsgMark"_s);
        EXPECT_TRUE(mark.isVisible());
        EXPECT_TRUE(text.geometry().contains(mark.geometry()));
        // No letter of the text lies under the mark.
        part(window, u"imgMsgMark"_s).hide();
        const QImage under = window.grab(mark.geometry()).toImage();
        for (int y = 0; y < under.height(); ++y)
            for (int x = 0; x < under.width(); ++x)
                EXPECT_GT(qGray(under.pixel(x, y)), 200) << x << ", " << y;
        press(window, u"cmdNo"_s);
    });
    EXPECT_FALSE(askAboutSection());
}

TEST_F(msgWindowTest, the_drawings_are_advised_about_with_ok_and_the_box) {
    user.meets<msgWindow>([](msgWindow& window) {
        EXPECT_EQ(window.windowTitle(), u"Drawings - Important Information!"_s);
        EXPECT_EQ(
            part<QLabel>(window, u"lblShowMessage"_s).text(),
            u"You will need to prepare detailed drawings for your invention showing your invention from different views (e.g. front view, side view, perspective view, rear view, exploded view, etc.). It is important to show every important detail of your invention from various different views to provide a reader of your application a solid understanding of what your invention is. The drawings should also emphasize the unique features of your invention. The drawings can be hand drawn, but it is recommended you use a CAD software program. We have a listing of free CAD software programs under the Resources section."_s);
        EXPECT_EQ(shown(window), (QStringList{u"cmdOK"_s, u"chkShowMsg"_s}));
        expectWellPlaced(window);
        press(window, u"cmdOK"_s);
    });
    adviseAboutDrawings();
}

TEST_F(msgWindowTest, the_drawings_window_is_fitted_to_its_text) {
    user.meets<msgWindow>([](msgWindow& window) {
        const auto& text = part<QLabel>(window, u"lblShowMessage"_s);
        const QWidget& ok = part(window, u"cmdOK"_s);
        EXPECT_EQ(ok.y(), text.y() + text.heightForWidth(text.width()) + 50);
        EXPECT_EQ(window.height(), ok.geometry().bottom() + 1 + 19);
        press(window, u"cmdOK"_s);
    });
    adviseAboutDrawings();
}

TEST_F(msgWindowTest, the_export_asks_for_a_format_and_has_no_box) {
    user.meets<msgWindow>([](msgWindow& window) {
        EXPECT_EQ(window.windowTitle(), u"Export to File"_s);
        EXPECT_EQ(
            part<QLabel>(window, u"lblShowMessage"_s).text(),
            u"If you would like to edit your provisional patent application prior to submitting to the USPTO, you need to edit it with Microsoft Word or other editor.  Please select the file format that you would like to export your provisional patent application to."_s);
        EXPECT_EQ(shown(window), (QStringList{u"cmdExport"_s, u"cmdCancel"_s, u"optFormat(0)"_s,
                                              u"optFormat(1)"_s, u"lblExportToFileFormat"_s}));
        EXPECT_EQ(part<QLabel>(window, u"lblExportToFileFormat"_s).text(),
                  u"Export File Format:"_s);
        EXPECT_EQ(part<QRadioButton>(window, u"optFormat(0)"_s).text(), u"Microsoft Word"_s);
        EXPECT_EQ(part<QRadioButton>(window, u"optFormat(1)"_s).text(), u"HTML"_s);
        EXPECT_TRUE(part<QRadioButton>(window, u"optFormat(0)"_s).isChecked());
        expectWellPlaced(window);
        press(window, u"cmdExport"_s);
    });
    EXPECT_EQ(askForFormat(), Choice::Word);
}

TEST_F(msgWindowTest, html_can_be_chosen_in_place_of_word) {
    user.meets<msgWindow>([](msgWindow& window) {
        part<QRadioButton>(window, u"optFormat(1)"_s).click();
        press(window, u"cmdExport"_s);
    });
    EXPECT_EQ(askForFormat(), Choice::Html);
}

TEST_F(msgWindowTest, without_word_the_export_can_only_choose_html) {
    user.meets<msgWindow>([](msgWindow& window) {
        auto& word = part<QRadioButton>(window, u"optFormat(0)"_s);
        EXPECT_TRUE(word.isVisible());
        EXPECT_FALSE(word.isEnabled());
        EXPECT_TRUE(part<QRadioButton>(window, u"optFormat(1)"_s).isChecked());
        QTest::mouseClick(&word, Qt::LeftButton);
        press(window, u"cmdExport"_s);
    });
    EXPECT_EQ(askForFormat(false), Choice::Html);
}

TEST_F(msgWindowTest, cancel_chooses_no_format) {
    user.meets<msgWindow>([](msgWindow& window) { press(window, u"cmdCancel"_s); });
    EXPECT_EQ(askForFormat(), Choice::Cancel);
}

TEST_F(msgWindowTest, the_keys_y_and_n_answer_as_the_buttons_do) {
    user.meets<msgWindow>([](msgWindow& window) { QTest::keyClick(&window, Qt::Key_Y); })
        .meets<msgWindow>([](msgWindow& window) { QTest::keyClick(&window, Qt::Key_N); });
    EXPECT_TRUE(askAboutSection());
    EXPECT_FALSE(askAboutSection());
}

TEST_F(msgWindowTest, the_keys_answer_wherever_the_focus_is) {
    user.meets<msgWindow>([](msgWindow& window) {
        auto& box = part<QCheckBox>(window, u"chkShowMsg"_s);
        box.setFocus();
        QTest::keyClick(&box, Qt::Key_Y, Qt::ShiftModifier);
    });
    EXPECT_TRUE(askAboutSection());
}

TEST_F(msgWindowTest, the_keys_answer_nothing_where_yes_and_no_are_not_up) {
    user.meets<msgWindow>([](msgWindow& window) {
        QTest::keyClick(&window, Qt::Key_Y);
        QTest::keyClick(&window, Qt::Key_N);
        EXPECT_TRUE(window.isVisible());
        press(window, u"cmdCancel"_s);
    });
    EXPECT_EQ(askForFormat(), Choice::Cancel);
}

TEST_F(msgWindowTest, each_change_of_the_box_is_told_at_once) {
    user.meets<msgWindow>([this](msgWindow& window) {
        auto& box = part<QCheckBox>(window, u"chkShowMsg"_s);
        EXPECT_FALSE(box.isChecked()) << "it is never preset";
        box.click();
        EXPECT_EQ(changes, (std::vector{true}));
        box.click();
        box.click();
        EXPECT_EQ(changes, (std::vector{true, false, true}));
        press(window, u"cmdNo"_s);
    });
    EXPECT_FALSE(askAboutSection());
    EXPECT_EQ(changes, (std::vector{true, false, true})) << "the answer changes nothing of it";
}

TEST_F(msgWindowTest, the_box_of_the_drawings_window_is_told_too) {
    user.meets<msgWindow>([](msgWindow& window) {
        part<QCheckBox>(window, u"chkShowMsg"_s).click();
        press(window, u"cmdOK"_s);
    });
    adviseAboutDrawings();
    EXPECT_EQ(changes, (std::vector{true}));
}

TEST_F(msgWindowTest, a_window_that_is_closed_otherwise_says_no_or_cancel) {
    const auto close = [](msgWindow& window) {
        QTest::mouseClick(&part(window, u"lblClose"_s), Qt::LeftButton);
    };
    const auto escape = [](msgWindow& window) { QTest::keyClick(&window, Qt::Key_Escape); };
    user.meets<msgWindow>(close)
        .meets<msgWindow>(escape)
        .meets<msgWindow>([](msgWindow& window) { window.close(); })
        .meets<msgWindow>(close)
        .meets<msgWindow>(escape);
    EXPECT_FALSE(askAboutSection());
    EXPECT_FALSE(askAboutSection());
    EXPECT_FALSE(askAboutSection());
    EXPECT_EQ(askForFormat(), Choice::Cancel);
    EXPECT_EQ(askForFormat(), Choice::Cancel);
}

TEST_F(msgWindowTest, enter_presses_the_main_button_and_tab_goes_on_to_the_next) {
    user.meets<msgWindow>([](msgWindow& window) {
            EXPECT_TRUE(part(window, u"cmdYes"_s).hasFocus());
            QTest::keyClick(&part(window, u"cmdYes"_s), Qt::Key_Return);
        })
        .meets<msgWindow>([](msgWindow& window) {
            QTest::keyClick(&part(window, u"cmdYes"_s), Qt::Key_Tab);
            EXPECT_TRUE(part(window, u"cmdNo"_s).hasFocus());
            QTest::keyClick(&part(window, u"cmdNo"_s), Qt::Key_Space);
        });
    EXPECT_TRUE(askAboutSection());
    EXPECT_FALSE(askAboutSection());
}
