#pragma once

#include <QDialog>

class QLabel;

namespace quillford {

class ClickLabel;

/// The frame of the program's own dialogs: no system frame, a title strip by which the dialog is
/// moved, `lblTitleBar`, with the title in it and a close control, `lblClose`, and rounded corners.
/// The derived form places its controls below the strip, with `TitleHeight` as their top.
///
/// Closing by the strip, by Escape and by the system are all a `reject()`.
class FormDialog : public QDialog {
    Q_OBJECT

public:
    static constexpr int TitleHeight = 34;

    explicit FormDialog(QWidget* parent);

    /// The title in the strip and of the window.
    void setTitle(const QString& title);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* title_;
    ClickLabel* close_;
};

} // namespace quillford
