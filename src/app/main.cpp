#include "app/Program.h"
#include "app/Zoom.h"
#include "controls/Theme.h"

#include <QApplication>

int main(int argc, char** argv) {
    // Paper and screen share one measure, whatever the desktop says of its dots.
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    const quillford::ZoomScope zoom(argc, argv);
    QApplication application(argc, argv);
    zoom.leave();
    QApplication::setApplicationName(QStringLiteral("Quillford"));
    QApplication::setApplicationVersion(QStringLiteral("3.1"));
    quillford::theme::apply(application);
    return quillford::Program().run(QCoreApplication::arguments().sliced(1));
}
