#include "shell/dialogs/frmSplash.h"

#include "controls/Theme.h"
#include "core/commands/Pause.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace quillford {

namespace {

constexpr int FadeStep = 40;
constexpr int FadeInterval = 60; // milliseconds
constexpr int FullAlpha = 255;
constexpr int SecondsShown = 3;

} // namespace

frmSplash::frmSplash(Clock& clock, const mdlSystem& system)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint),
      clock_(clock),
      system_(system),
      step_(FadeStep) {
    setObjectName(QStringLiteral("frmSplash"));
    setFixedSize(440, 260);
    setAttribute(Qt::WA_TranslucentBackground);
    Timer1_.setObjectName(QStringLiteral("Timer1"));
    Timer1_.setInterval(qRound(FadeInterval * clock.pace()));
    connect(&Timer1_, &QTimer::timeout, this, &frmSplash::timer1);
}

void frmSplash::showModally() {
    if (clock_.pace() <= 0)
        return;
    show();
    Timer1_.start();
    while (!gone_)
        clock_.letEventsRun(FadeInterval);
    hide();
}

void frmSplash::timer1() {
    alpha_ += step_;
    if (alpha_ >= FullAlpha + 1) {
        alpha_ = FullAlpha;
        repaint();
        Timer1_.stop();
        Pause(SecondsShown, clock_, system_);
        step_ = -FadeStep;
        Timer1_.start();
    } else if (alpha_ < 0) {
        alpha_ = 0;
        Timer1_.stop();
        gone_ = true;
    } else {
        update();
    }
}

QPixmap frmSplash::picture() const {
    QPixmap picture(size() * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QSvgRenderer(QStringLiteral(":/pictures/splash.svg")).render(&painter, rect());
    QFont name = theme::headingFont();
    name.setPixelSize(34);
    painter.setFont(name);
    painter.setPen(theme::White);
    painter.drawText(QRect(190, 96, 240, 44), Qt::AlignLeft, QStringLiteral("Quillford"));
    painter.setFont(theme::fieldFont());
    painter.drawText(QRect(192, 142, 240, 20), Qt::AlignLeft, QStringLiteral("Version 3.1"));
    return picture;
}

void frmSplash::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setOpacity(alpha_ / double{FullAlpha});
    painter.drawPixmap(0, 0, picture());
}

} // namespace quillford
