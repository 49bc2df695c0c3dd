#include "editors/pages/FiguresPageFixture.h"

#include <QTest>

#include <algorithm>

namespace quillford {

FiguresPageFixture::FiguresPageFixture()
    : page(*new PageFigures(addContainer(FiguresTab), fields, bound, order,
                            {pictures_, pictures_, prompts})) {
    state.currentTab = FiguresTab;
    order.enterTab(FiguresTab, fields);
    join({nullptr, nullptr, &page, nullptr, nullptr, nullptr}, screen);
}

void FiguresPageFixture::clickCount(int count) {
    choose(QStringLiteral("cboFiguresNum"), QString::number(count));
}

void FiguresPageFixture::chooseCount(int count) {
    clickCount(count);
    waitForLayout();
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

} // namespace quillford
