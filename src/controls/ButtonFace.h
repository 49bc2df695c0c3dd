#pragma once

#include <QLabel>

namespace quillford {

class myImageButton;

/// The picture inside a `myImageButton`, `picbutton`: it takes the clicks and draws the focus mark.
class ButtonFace final : public QLabel {
    Q_OBJECT

public:
    /// The focus mark lies this many pixels inside the picture.
    static constexpr int MarkInset = 3;

    explicit ButtonFace(myImageButton& button);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void drawFace(QPainter& painter) const;
    void drawFocusMark(QPainter& painter) const;

    myImageButton& button_;
    bool pressed_ = false;
};

} // namespace quillford
