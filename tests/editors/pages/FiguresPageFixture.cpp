#include "editors/pages/FiguresPageFixture.h"

#include "controls/FormCombo.h"
#include "controls/FramePanel.h"

#include <QTest>
#include <QListView>
#include <QtTest>

#include <algorithm>

namespace quillford {

FiguresPageFixture::FiguresPageFixture() {
    form_.resize(984, 640);
    container_.setObjectName(controlName(u"picContainer", FiguresTab));
    container_.setGeometry(16, 122, 700, 430);
    state.currentTab = FiguresTab;
    order.enterTab(FiguresTab, fields);
    connectSteps();
    form_.show();
    form_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form_));
}

FiguresPageFixture::~FiguresPageFixture() {
    bound.disconnect();
    fields.setObserver(nullptr);
}

void FiguresPageFixture::connectSteps() {
    fields.setObserver(&steps);
    bound.setHooks({{}, [this](int figure) { page.showFigureSentence(figure); }});
    QObject::connect(&bound, &BoundFields::focusReached,
                     [this](const FieldPlace& place) { wrap.focusReached(place); });
    QObject::connect(&bound, &BoundFields::focusLeft,
                     [this](const FieldPlace& place) { steps.focusLost(place); });
    QObject::connect(&bound, &BoundFields::chosen,
                     [this](const FieldPlace& place) { steps.clicked(place); });
}

void FiguresPageFixture::type(const QString& name, const QString& text) {
    QWidget& field = control(name);
    auto* const area = qobject_cast<QAbstractScrollArea*>(&field);
    QTest::mouseClick(area ? area->viewport() : &field, Qt::LeftButton);
    QTest::keyClick(&field, Qt::Key_End, area ? Qt::ControlModifier : Qt::NoModifier);
    QTest::keyClicks(&field, text);
}

void FiguresPageFixture::choose(const QString& name, const QString& row) {
    auto& list = control<FormCombo>(name);
    list.setFocus(Qt::MouseFocusReason);
    list.showPopup();
    const int found = list.findText(row, Qt::MatchExactly | Qt::MatchCaseSensitive);
    ASSERT_GE(found, 0) << row.toStdString() << " is no row of " << name.toStdString();
    list.view()->setCurrentIndex(list.model()->index(found, 0));
    QTest::keyClick(list.view(), Qt::Key_Return);
    // Without a window manager nobody gives the form its activation back.
    form_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form_));
}

void FiguresPageFixture::clickCount(int count) {
    choose(QStringLiteral("cboFiguresNum"), QString::number(count));
}

void FiguresPageFixture::chooseCount(int count) {
    clickCount(count);
    waitForLayout();
}

void FiguresPageFixture::waitForLayout() {
    const auto* timer = timers.findChild<QTimer*>(QStringLiteral("Timer(2)"));
    ASSERT_TRUE(QTest::qWaitFor([timer] { return !timer->isActive(); }));
}

void FiguresPageFixture::browse(const QString& path, int figure) {
    prompts.filesToOpen.push_back(path);
    QTest::mouseClick(control(u"imgBrowse", figure).findChild<QLabel*>(), Qt::LeftButton);
}

void FiguresPageFixture::remove(int figure) {
    QTest::mouseClick(control(u"imgRemove", figure).findChild<QLabel*>(), Qt::LeftButton);
}

QString FiguresPageFixture::picture(const QString& name, QSize pixels, const char* format) const {
    QImage image(pixels, QImage::Format_RGB32);
    image.fill(Qt::black);
    for (int y = pixels.height() / 2; y < pixels.height(); ++y)
        std::fill_n(reinterpret_cast<QRgb*>(image.scanLine(y)), pixels.width(),
                    qRgb(255, 255, 255));
    const QString path = folder.filePath(name);
    EXPECT_TRUE(image.save(path, format)) << name.toStdString();
    return path;
}

QString FiguresPageFixture::file(const QString& name, const QByteArray& bytes) const {
    QFile created(folder.filePath(name));
    EXPECT_TRUE(created.open(QIODevice::WriteOnly));
    EXPECT_EQ(created.write(bytes), bytes.size());
    return created.fileName();
}

QImage FiguresPageFixture::preview(int figure) const {
    return control<QLabel>(u"imgFigure", figure).pixmap(Qt::ReturnByValue).toImage();
}

QRect FiguresPageFixture::previewPlace(int figure) const {
    const QWidget& picture = control(u"imgFigure", figure);
    const QWidget& square = control(u"shpFigureContain", figure);
    return {square.mapFromGlobal(picture.mapToGlobal(QPoint())), picture.size()};
}

QStringList FiguresPageFixture::crowded(const QWidget& panel) {
    QStringList found;
    QList<QWidget*> parts = panel.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* part : parts)
        if (!panel.rect().contains(part->geometry()))
            found.append(part->objectName() + QStringLiteral(" sticks out"));
    parts.removeIf([](const QWidget* part) { return qobject_cast<const FramePanel*>(part); });
    for (qsizetype i = 0; i < parts.size(); ++i)
        for (qsizetype j = 0; j < i; ++j)
            if (parts[i]->geometry().intersects(parts[j]->geometry()))
                found.append(parts[i]->objectName() + QStringLiteral(" over ") +
                             parts[j]->objectName());
    return found;
}

} // namespace quillford
