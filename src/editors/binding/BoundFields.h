#pragma once

#include "editors/binding/FieldBinding.h"
#include "editors/rules/FieldScreen.h"

#include <QHash>
#include <QObject>

#include <functional>

class QCheckBox;

namespace quillford {

class FormCombo;
class LineField;
class TextField;

/// All bindings between the project's fields and the controls on screen.
class BoundFields final : public QObject, public FieldScreen {
    Q_OBJECT

public:
    /// What follows a change on screen and is no field's business.
    struct Hooks {
        std::function<void(QWidget& control)> spell;    ///< binds the spell checker to a control
        std::function<void(int figure)> figureSentence; ///< writes a figure's sentence anew
    };

    /// `fields` outlives the bindings.
    explicit BoundFields(ProjectFields& fields) : fields_(fields) {}

    /// A hook that is not set does nothing.
    void setHooks(Hooks hooks) { hooks_ = std::move(hooks); }

    /// Binds a control to a field, by the control's own name: "txtFileNo", "txtObject(3)". It gets
    /// the field's limit, its rule for Enter, its list's rows and, where it has none of its own,
    /// the field's label as the name that assistive programs read. The binding ends with the
    /// control.
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

    // A field without a control, on a panel that is not made yet, is passed over.
    void showText(FieldPlace place) override;

    void whiten(FieldPlace place) override { setTint(place, false); }

    void SpellAttach(FieldPlace place) override;
    void enableField(FieldPlace place, bool on) override;
    void showFigureSentence(int figure) override;

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
    Hooks hooks_;
    QHash<QString, FieldBinding*> bindings_;
};

/// The field whose control bears this name; its row is null for a name that is no field's.
struct NamedField {
    const FieldRow* row = nullptr;
    int index = 0;
};

[[nodiscard]] NamedField fieldNamed(const QString& controlName);

} // namespace quillford
