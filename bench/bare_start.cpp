#include "FirstPaint.h"

#include <QApplication>
#include <QTextBrowser>

/// The least that a program of this toolkit does to show a page: the peer of `bench_start`.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QTextBrowser page;
    page.setHtml(QStringLiteral("<h1>Help</h1><p>A page of help.</p>"));
    page.resize(984, 640);
    const quillford::FirstPaint end(page);
    page.show();
    return QApplication::exec();
}
