#include "controls/Theme.h"

#include "controls/FormCombo.h"
#include "controls/LineField.h"
#include "controls/TextField.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMenu>
#include <QMessageBox>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// A program that is started on a dark desktop: white text on black everywhere.
class ThemeTest : public testing::Test {
protected:
    ThemeTest() {
        QPalette dark(Qt::black, Qt::black);
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            dark.setColor(role, Qt::white);
        dark.setColor(QPalette::Base, Qt::black);
        dark.setColor(QPalette::Window, Qt::black);
        QApplication::setPalette(dark);
        theme::apply(*qApp);
    }

    /// How much of a picture is lighter than this grey, from 0 to 1.
    static double lightness(QWidget& widget, int grey) {
        widget.resize(220, 60);
        const QImage picture = widget.grab().toImage();
        int light = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                light += qGray(picture.pixel(x, y)) > grey;
        return light / static_cast<double>(picture.width() * picture.height());
    }

    /// The text has to be read against the ground: most of the widget is light, some of it dark.
    static void expectDarkOnLight(QWidget& widget, const char* what) {
        EXPECT_GT(lightness(widget, 220), 0.75) << what;
        EXPECT_LT(lightness(widget, 160), 1) << what;
    }
};

} // namespace

TEST_F(ThemeTest, on_a_dark_desktop_fields_stay_dark_on_white) {
    LineField line;
    line.setText(u"folding easel"_s);
    expectDarkOnLight(line, "a field of one line");
    EXPECT_EQ(line.palette().color(QPalette::Base), theme::White);
    EXPECT_EQ(line.palette().color(QPalette::Text), theme::Text);
    TextField text;
    text.setPlainText(u"folding easel"_s);
    expectDarkOnLight(text, "a box of text");
    FormCombo list;
    list.addItem(u"front view"_s);
    expectDarkOnLight(list, "a list");
    EXPECT_EQ(list.view()->palette().color(QPalette::Base), theme::White) << "a list that is open";
    EXPECT_EQ(list.view()->palette().color(QPalette::Text), theme::Text);
}

TEST_F(ThemeTest, on_a_dark_desktop_boxes_and_menus_stay_dark_on_light) {
    QMessageBox box(QMessageBox::NoIcon, u"Save Project?"_s, u"Do you wish to save?"_s,
                    QMessageBox::Yes);
    expectDarkOnLight(box, "a message box");
    QMenu menu;
    menu.addAction(u"Save"_s);
    expectDarkOnLight(menu, "a menu");
}

TEST_F(ThemeTest, on_a_dark_desktop_a_disabled_field_is_still_light) {
    LineField line;
    line.setText(u"folding easel"_s);
    line.setEnabled(false);
    expectDarkOnLight(line, "a disabled field");
}

TEST_F(ThemeTest, an_empty_required_field_has_its_tint_and_loses_it_again) {
    LineField line;
    line.setTint(true);
    EXPECT_EQ(line.palette().color(QPalette::Base), theme::Tint);
    EXPECT_EQ(line.palette().color(QPalette::Text), theme::Text);
    line.setTint(false);
    EXPECT_EQ(line.palette().color(QPalette::Base), theme::White);
}
