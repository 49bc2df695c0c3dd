#pragma once

#include "core/wizard/SaveStateLine.h"
#include "core/wizard/TitleLine.h"

#include <QObject>

class QLabel;

namespace quillford {

/// The texts of the title strip: the form's caption at the left, the line of the invention in the
/// middle, `lblTitleInvention`, and when the project was last saved, `lblSaveState`.
class TitleRow final : public QObject, public TitleLine, public SaveStateLine {
    Q_OBJECT

public:
    /// The labels stand below `form`, which owns this object.
    explicit TitleRow(QWidget& form);

    /// The form's caption, also shown by the desktop. One that is too long ends in "…".
    void setCaption(const QString& caption);

    void showTitleInvention(const QString& caption) override;

    /// Has room for two lines; the label's tip has all of a longer one.
    void showSaveState(const QString& text) override;

    [[nodiscard]] QString saveState() const override;

private:
    QWidget& form_;
    QLabel* caption_;
    QLabel* title_;
    QLabel* saveState_;
};

} // namespace quillford
