#pragma once

#include "editors/binding/FieldBinding.h"

#include <QHash>
#include <QObject>

class QCheckBox;

namespace quillford {

class FormCombo;
class LineField;
class TextField;

/// All bindings between the project's fields and the controls on screen. It is the observer of the
/// fields: a change by anyone is shown first and then handed on to what follows a change.
class BoundFields final : public QObject, public FieldObserver {
    Q_OBJECT

public:
    /// Becomes the observer of `fields`, which outlives it.
    explicit BoundFields(ProjectFields& fields);
    ~BoundFields() override;

    /// Who is told of a change once it is shown; null for nobody. Not owned.
    void setNext(FieldObserver* next) { next_ = next; }

    /// Binds a control to a field, by the control's own name: "txtFileNo", "txtObject(3)". It gets
    /// the field's limit, its list's rows and, where it has none of its own, the field's label as
    /// the name that assistive programs read. The binding ends with the control.
    void bind(LineField& control);
    void bind(TextField& control);
    void bind(FormCombo& control);
    void bind(QCheckBox& control);

    /// Binds every control below `form` whose name is a field's.
    void bindAll(QWidget& form);

    /// The control of a field, or null while there is none.
    [[nodiscard]] QWidget* control(const FieldPlace& place) const;

    void setTint(const FieldPlace& place, bool on);
    void whitenAll();

    void fieldChanged(FieldId field, int index) override;

Q_SIGNALS:
    /// The focus has come to a field's control, by the Tab key or otherwise.
    void focusReached(const quillford::FieldPlace& place, bool byTab);
    void focusLeft(const quillford::FieldPlace& place);

    /// The user has chosen a row of a list or clicked a check box; the field holds it already.
    void chosen(const quillford::FieldPlace& place);

private:
    template <typename Control>
    FieldBinding& add(Control& control, FieldControl as);
    [[nodiscard]] FieldBinding* find(const FieldPlace& place) const;

    ProjectFields& fields_;
    FieldObserver* next_ = nullptr;
    QHash<QString, FieldBinding*> bindings_;
};

/// The field whose control bears this name; its row is null for a name that is no field's.
struct NamedField {
    const FieldRow* row = nullptr;
    int index = 0;
};

[[nodiscard]] NamedField fieldNamed(const QString& controlName);

/// The name of the control of a field.
[[nodiscard]] QString controlNameOf(const FieldPlace& place);

} // namespace quillford
