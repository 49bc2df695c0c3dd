#pragma once

#include <QLabel>
#include <QMouseEvent>

namespace quillford {

/// A label or picture that can be clicked, and that assistive programs see as a button. Where it
/// takes the focus, space and Enter are clicks as well. Its text is plain text.
class ClickLabel : public QLabel {
    Q_OBJECT

public:
    explicit ClickLabel(QWidget* parent = nullptr);

    /// Emits `clicked` as the user's click does, unless the label is disabled.
    Q_INVOKABLE void click();

Q_SIGNALS:
    void clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool pressed_ = false;
};

} // namespace quillford
