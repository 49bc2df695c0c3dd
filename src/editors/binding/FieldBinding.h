#pragma once

#include "core/fields/ProjectFields.h"
#include "core/rules/GuidanceRules.h"
#include "editors/binding/FieldControl.h"

#include <QObject>

namespace quillford {

/// One field and its control: what the user types goes into the field, and what the field becomes
/// by anyone else is shown. The echo between the two ends here and nowhere else. Owned by its
/// control, and gone with it.
///
/// A field's text has CR LF between its lines, a control's has LF; this is where the two meet.
class FieldBinding final : public QObject {
    Q_OBJECT

public:
    /// Shows the field's text. `fields` outlives the control.
    FieldBinding(ProjectFields& fields, FieldPlace place, FieldControl control);

    [[nodiscard]] const FieldPlace& place() const { return place_; }

    [[nodiscard]] QWidget& widget() const { return *control_.widget; }

    /// Shows the text that the field holds, unless it came from this control just now.
    void showField();

    void setTint(bool on) { control_.tint(on); }

    /// The user has made the control's text this one.
    void edit(const QString& shown);

    /// The user has chosen a row, the one that was chosen already included.
    void choose();

Q_SIGNALS:
    void focusReached(bool byTab);
    void focusLeft();
    void chosen();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] Field& field() const { return fields_.at(place_.field, place_.index); }

    ProjectFields& fields_;
    FieldPlace place_;
    FieldControl control_;
    bool editing_ = false;
};

} // namespace quillford
