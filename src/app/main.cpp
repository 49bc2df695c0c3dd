#include "app/Program.h"
#include "app/Zoom.h"
#include "controls/Theme.h"

#include <QApplication>

int main(int argc, char** argv) {
    const quillford::ZoomScope zoom(argc, argv);
    QApplication application(argc, argv);
    zoom.leave();
    QApplication::setApplicationName(QStringLiteral("Quillford"));
    QApplication::setApplicationVersion(QStringLiteral("3.1"));
    quillford::theme::apply(application);
    return quillford::Program().run(QCoreApplication::arguments().sliced(1));
}
