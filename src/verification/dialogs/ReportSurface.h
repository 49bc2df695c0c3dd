#pragma once

#include "verification/dialogs/ReportLines.h"

#include <QFont>
#include <QWidget>

namespace quillford {

/// The surface on which the error report is drawn, `picErrorReport`. Each entry can be activated,
/// by a click or by Enter on the entry that the arrow keys have marked.
class ReportSurface final : public QWidget {
    Q_OBJECT

public:
    explicit ReportSurface(QWidget* parent = nullptr);

    /// Draws a report, in the font in which it was measured, and is as high.
    void draw(const Report& report, const QFont& font, int lineHeight);

Q_SIGNALS:
    void entryActivated(qsizetype entry);
    /// The marked entry stands from `top` to `bottom`, and has to be brought into view.
    void entryMarked(int top, int bottom);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    [[nodiscard]] QRect placeOf(qsizetype entry) const;
    [[nodiscard]] std::optional<qsizetype> entryAt(QPoint place) const;
    void mark(qsizetype entry);

    Report report_;
    QFont font_;
    int lineHeight_ = 0;
    qsizetype marked_ = 0;
    std::optional<qsizetype> pressed_; ///< the entry on which the mouse button went down
};

} // namespace quillford
