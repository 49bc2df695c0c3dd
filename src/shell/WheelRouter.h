#pragma once

#include <QObject>
#include <QScrollBar>
#include <QWidget>

#include <functional>

namespace quillford {

/// Decides which scroll bar a notch of the mouse wheel moves: the index's while the index has the
/// focus, otherwise that of the section that is shown. Over the help pane, and over a box of text
/// that can still move, the notch is theirs.
class WheelRouter final : public QObject {
    Q_OBJECT

public:
    /// What the router asks of the form at each notch. A function answers null for no bar.
    struct Bars {
        std::function<QScrollBar*()> index;   ///< `VScroll1` while the index has the focus
        std::function<QScrollBar*()> section; ///< the bar of the panel that is enabled
    };

    /// The form owns the router.
    WheelRouter(QWidget& form, QWidget& helpPane, Bars bars);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool helpHasFocus(const QPointF& mouse) const;
    void turn(int angle);

    QWidget& form_;
    QWidget& helpPane_;
    Bars bars_;
    int turned_ = 0;
};

} // namespace quillford
