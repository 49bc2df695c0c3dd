#pragma once

#include <QPixmap>
#include <QWidget>

namespace quillford {

class ButtonFace;

/// A button that is a picture with a caption, and that takes the focus. The picture is drawn by the
/// button from its kind: the main button of a row is filled, the others are outlined. A form that
/// has a picture of its own gives it as `ButtonPicture`, and it is shown in place of the drawn one.
///
/// Space and Enter are clicks while it has the focus. Disabled, it keeps its picture, greyed.
class myImageButton : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString caption READ caption WRITE setCaption)
    Q_PROPERTY(bool filled READ isFilled WRITE setFilled)
    Q_PROPERTY(QPixmap ButtonPicture READ ButtonPicture WRITE setButtonPicture)
    Q_PROPERTY(QColor BackColor READ BackColor WRITE setBackColor)

public:
    explicit myImageButton(QWidget* parent = nullptr);

    [[nodiscard]] const QString& caption() const { return caption_; }

    /// Also the name that assistive programs read.
    void setCaption(const QString& caption);

    [[nodiscard]] bool isFilled() const { return filled_; }

    void setFilled(bool filled);

    [[nodiscard]] const QPixmap& ButtonPicture() const { return picture_; }

    /// A null picture brings the drawn face back.
    void setButtonPicture(const QPixmap& picture);

    /// The colour behind the picture; an invalid one lets what lies behind the button through.
    [[nodiscard]] const QColor& BackColor() const { return backColor_; }

    void setBackColor(const QColor& colour);

    /// Emits `clicked`, unless the button is disabled.
    Q_INVOKABLE void click();

Q_SIGNALS:
    void clicked();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    friend class ButtonFace;

    ButtonFace* picbutton_; // owned as a child
    QString caption_;
    QPixmap picture_;
    QColor backColor_;
    bool filled_ = false;
    bool hasFocus_ = false;
};

} // namespace quillford
