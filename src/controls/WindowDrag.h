#pragma once

#include <QObject>
#include <QPoint>
#include <QWidget>

namespace quillford {

/// Moves a window without a system frame by a strip inside it, and by the keyboard after
/// `StartMove`.
class WindowDrag final : public QObject {
    Q_OBJECT

public:
    /// `strip` lies within the window that it moves, and owns this object.
    explicit WindowDrag(QWidget& strip);

    /// Prepares a move from the keyboard: the strip takes the move pointer, and the pointer is put
    /// into the middle of the strip.
    void StartMove();

Q_SIGNALS:
    /// The right button went down on the strip, at this place of the screen.
    void menuWanted(const QPoint& place);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void press(const QPoint& place);
    void move(const QPoint& place);
    void release();

    QWidget& strip_;
    bool dragging_ = false;
    bool movedBySystem_ = false;
    QPoint dragStart_;
};

} // namespace quillford
