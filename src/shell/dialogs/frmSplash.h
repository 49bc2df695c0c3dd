#pragma once

#include "core/settings/mdlSystem.h"
#include "platform/Clock.h"

#include <QTimer>
#include <QWidget>

namespace quillford {

/// The picture at the start of the program: it fades in, stays for three seconds and fades out. A
/// plain borderless window; the toolkit's own splash may sleep a second until it is mapped. It fades
/// in what it paints, because not every desktop knows an opacity of whole windows.
class frmSplash final : public QWidget {
    Q_OBJECT

public:
    /// Both outlive the window.
    frmSplash(Clock& clock, const mdlSystem& system);

    /// Shows the window until it has faded out. At a pace of 0 nothing is shown at all.
    void showModally();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void timer1();
    [[nodiscard]] QPixmap picture() const;

    Clock& clock_;
    const mdlSystem& system_;
    QTimer Timer1_;
    int alpha_ = 0;
    int step_;
    bool gone_ = false;
};

} // namespace quillford
