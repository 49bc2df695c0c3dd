#pragma once

#include <QWidget>

namespace quillford {

/// A white ground with a thin frame and rounded corners, on which the controls of a part stand. A
/// title in the frame's line is a label of the form that covers the line.
class FramePanel final : public QWidget {
    Q_OBJECT

public:
    explicit FramePanel(QWidget* parent = nullptr) : QWidget(parent) {}

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillford
