#include "shell/WindowChrome.h"

#include "shell/FormFixture.h"

#include <QMenu>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class WindowChromeTest : public FormFixture {
protected:
    [[nodiscard]] QMenu& systemMenu() {
        QTest::mousePress(&control(u"lblTitleBar"_s), Qt::RightButton, {}, QPoint(300, 10));
        return control<QMenu>(u"systemMenu"_s);
    }

    static void choose(QMenu& menu, const QString& caption) {
        for (QAction* entry : menu.actions())
            if (entry->text() == caption)
                QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(entry).center());
    }
};

} // namespace

TEST_F(WindowChromeTest, the_outline_has_corners_of_an_ellipse_eleven_wide_and_twelve_high) {
    const QRegion outline = form.mask();
    EXPECT_EQ(outline.boundingRect(), form.rect());
    for (const QPoint& corner : {form.rect().topLeft(), form.rect().topRight(),
                                 form.rect().bottomLeft(), form.rect().bottomRight()})
        EXPECT_FALSE(outline.contains(corner)) << corner.x() << ", " << corner.y();
    EXPECT_TRUE(outline.contains(QPoint(6, 0)));
    EXPECT_TRUE(outline.contains(QPoint(0, 7)));
    EXPECT_TRUE(outline.contains(form.rect().center()));
}

TEST_F(WindowChromeTest, the_minimise_control_minimises) {
    QTest::mouseClick(&control(u"lblMin"_s), Qt::LeftButton);
    EXPECT_TRUE(form.isMinimized());
}

TEST_F(WindowChromeTest, the_close_control_asks_the_form_to_close) {
    int closings = 0;
    QObject::connect(&form, &frmMain1::closing, &form, [&] { ++closings; });
    QTest::mouseClick(&control(u"lblClose"_s), Qt::LeftButton);
    EXPECT_EQ(closings, 1);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(WindowChromeTest, a_form_that_refuses_to_close_stays) {
    QObject::connect(&form, &frmMain1::closing, &form, [](bool& refuse) { refuse = true; });
    QTest::mouseClick(&control(u"lblClose"_s), Qt::LeftButton);
    EXPECT_TRUE(form.isVisible());
}

TEST_F(WindowChromeTest, the_title_strip_lies_over_the_texts_and_below_the_two_controls) {
    EXPECT_EQ(form.childAt(100, 17)->objectName(), u"lblTitleBar"_s);
    EXPECT_EQ(form.childAt(500, 17)->objectName(), u"lblTitleBar"_s);
    EXPECT_EQ(form.childAt(control(u"lblMin"_s).geometry().center())->objectName(), u"lblMin"_s);
    EXPECT_EQ(form.childAt(control(u"lblClose"_s).geometry().center())->objectName(),
              u"lblClose"_s);
}

TEST_F(WindowChromeTest, the_form_is_moved_by_its_title_strip) {
    form.move(40, 50);
    QTest::mousePress(&control(u"lblTitleBar"_s), Qt::LeftButton, {}, QPoint(300, 10));
    QTest::mouseMove(&control(u"lblTitleBar"_s), QPoint(320, 15));
    QTest::mouseRelease(&control(u"lblTitleBar"_s), Qt::LeftButton);
    EXPECT_EQ(form.pos(), QPoint(60, 55));
}

TEST_F(WindowChromeTest, the_right_button_opens_the_system_menu_where_the_pointer_is) {
    QMenu& menu = systemMenu();
    EXPECT_TRUE(menu.isVisible());
    EXPECT_EQ(menu.pos(), form.mapToGlobal(QPoint(300, 10)));
    QStringList captions;
    for (const QAction* entry : menu.actions())
        captions.append(entry->text());
    EXPECT_EQ(captions, (QStringList{u"Move"_s, u"Minimize"_s, QString(), u"Close"_s}));
    menu.close();
}

TEST_F(WindowChromeTest, the_system_menu_moves_minimises_and_closes) {
    choose(systemMenu(), u"Move"_s);
    EXPECT_EQ(control(u"lblTitleBar"_s).cursor().shape(), Qt::SizeAllCursor);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    choose(systemMenu(), u"Close"_s);
    EXPECT_FALSE(form.isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    form.show();
    choose(systemMenu(), u"Minimize"_s);
    EXPECT_TRUE(form.isMinimized());
}
