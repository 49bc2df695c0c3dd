#pragma once

#include <QComboBox>

namespace quillford {

/// A drop-down list of a form. Editable, it takes typing as well as a choice; what is typed is
/// never completed and never becomes a row. The wheel passes it by, since a notch over a count
/// would destroy a panel.
class FormCombo : public QComboBox {
    Q_OBJECT

public:
    explicit FormCombo(QWidget* parent = nullptr);

    /// Shows the text: in an editable list as it stands, in another the row that is that text, or
    /// no row. Emits nothing of what follows.
    void showText(const QString& text);

    /// The text that is shown; empty while no row is selected.
    [[nodiscard]] QString text() const { return currentText(); }

    /// Gives the field the tint of an empty required field, or takes it away.
    void setTint(bool on);

    [[nodiscard]] bool isTinted() const { return tinted_; }

    /// An editable list takes typing; call it in place of `setEditable`.
    void setTyping(bool on);

Q_SIGNALS:
    /// The user typed, or chose another row.
    void edited(const QString& text);

    /// The user chose a row, the one that was chosen already included. Comes after `edited`.
    void chosen();

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    void rowActivated();

    QString shown_;
    bool tinted_ = false;
};

} // namespace quillford
