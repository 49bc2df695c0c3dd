#include "app/Zoom.h"

#include <QGuiApplication>
#include <QScreen>

#include <vector>

namespace quillford {

namespace {

constexpr QSize FormSize(984, 640);
constexpr double Zooms[] = {2.5, 2, 1.5, 1.25};
constexpr double ScreenShare = 0.8;
constexpr char ScaleVariable[] = "QT_SCALE_FACTOR";

bool userScales() {
    return qEnvironmentVariableIsSet(ScaleVariable) ||
           qEnvironmentVariableIsSet("QT_SCREEN_SCALE_FACTORS") ||
           qEnvironmentVariableIsSet("QT_FONT_DPI");
}

/// Read by an application object of its own, since the scale has to stand before the real one.
QSize freeScreenArea(int argc, char** argv) {
    // The toolkit takes its own options out of the list; the real application needs them too.
    std::vector<char*> arguments(argv, argv + argc);
    arguments.push_back(nullptr);
    const QGuiApplication reader(argc, arguments.data());
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableSize() : QSize();
}

} // namespace

double zoomFor(const QSize& freeArea) {
    for (const double zoom : Zooms)
        if (FormSize.width() * zoom <= freeArea.width() * ScreenShare &&
            FormSize.height() * zoom <= freeArea.height() * ScreenShare)
            return zoom;
    return 1;
}

ZoomScope::ZoomScope(int argc, char** argv) {
    // Tests draw on a pretended screen and measure in logical pixels.
    if (userScales() || qEnvironmentVariable("QT_QPA_PLATFORM").startsWith(u"offscreen"))
        return;
    const double zoom = zoomFor(freeScreenArea(argc, argv));
    if (zoom <= 1)
        return;
    qputenv(ScaleVariable, QByteArray::number(zoom));
    set_ = true;
}

void ZoomScope::leave() const {
    if (set_)
        qunsetenv(ScaleVariable);
}

} // namespace quillford
