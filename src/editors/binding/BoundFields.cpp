#include "editors/binding/BoundFields.h"

#include "controls/FormCombo.h"
#include "controls/LineField.h"
#include "controls/TextField.h"
#include "core/fields/FieldLists.h"
#include "core/wizard/FocusOrder.h"
#include "editors/rules/KeyRules.h"

#include <QCheckBox>
#include <QRegularExpression>

namespace quillford {

namespace {

void nameForAssistance(QWidget& control, const FieldRow& row) {
    if (control.accessibleName().isEmpty())
        control.setAccessibleName(row.label.toString());
}

/// What the text boxes and the lists have in common.
template <typename Control>
FieldControl asFieldControl(Control& control) {
    return {&control, [&control](const QString& text) { control.showText(text); },
            [&control](bool on) { control.setTint(on); }};
}

} // namespace

NamedField fieldNamed(const QString& controlName) {
    static const QRegularExpression member(QStringLiteral("^(\\w+)\\((\\d+)\\)$"));
    const auto match = member.match(controlName);
    if (!match.hasMatch())
        return {findFieldRow(controlName), 0};
    return {findFieldRow(match.capturedView(1)), match.capturedView(2).toInt()};
}

void BoundFields::bind(LineField& control) {
    FieldBinding& binding = add(control, asFieldControl(control));
    control.setLimit(fieldRow(binding.place().field).limit);
    connect(&control, &LineField::edited, &binding, &FieldBinding::edit);
}

void BoundFields::bind(TextField& control) {
    FieldBinding& binding = add(control, asFieldControl(control));
    control.setEnterSwallowed(swallowsEnter(binding.place().field));
    control.setLimit(fieldRow(binding.place().field).limit);
    connect(&control, &TextField::edited, &binding, &FieldBinding::edit);
}

void BoundFields::bind(FormCombo& control) {
    const FieldRow& row = *fieldNamed(control.objectName()).row;
    control.setTyping(row.kind == FieldKind::Combo);
    control.addItems(listRows(row.list));
    FieldBinding& binding = add(control, asFieldControl(control));
    connect(&control, &FormCombo::edited, &binding, &FieldBinding::edit);
    connect(&control, &FormCombo::chosen, &binding, &FieldBinding::choose);
}

void BoundFields::bind(QCheckBox& control) {
    FieldBinding& binding = add(
        control, {&control, [&control](const QString& text) { control.setChecked(text == u'1'); },
                  [](bool) { /* a check box has no tint */ }});
    connect(&control, &QCheckBox::clicked, &binding, [&binding](bool checked) {
        binding.edit(checked ? QStringLiteral("1") : QStringLiteral("0"));
        binding.choose();
    });
}

void BoundFields::bindAll(QWidget& form) {
    for (QWidget* widget : form.findChildren<QWidget*>()) {
        if (!fieldNamed(widget->objectName()).row)
            continue;
        if (auto* line = qobject_cast<LineField*>(widget))
            bind(*line);
        else if (auto* text = qobject_cast<TextField*>(widget))
            bind(*text);
        else if (auto* combo = qobject_cast<FormCombo*>(widget))
            bind(*combo);
        else if (auto* box = qobject_cast<QCheckBox*>(widget))
            bind(*box);
    }
}

template <typename Control>
FieldBinding& BoundFields::add(Control& control, FieldControl as) {
    const QString name = control.objectName();
    const NamedField named = fieldNamed(name);
    Q_ASSERT(named.row);
    const FieldPlace place{named.row->id, named.index};
    nameForAssistance(control, *named.row);
    auto* binding = new FieldBinding(fields_, place, std::move(as));
    bindings_.insert(name, binding);
    connect(binding, &QObject::destroyed, this, [this, name, binding] {
        if (bindings_.value(name) == binding)
            bindings_.remove(name);
    });
    connect(binding, &FieldBinding::focusReached, this,
            [this, place](bool byTab) { Q_EMIT focusReached(place, byTab); });
    connect(binding, &FieldBinding::focusLeft, this, [this, place] { Q_EMIT focusLeft(place); });
    connect(binding, &FieldBinding::chosen, this, [this, place] { Q_EMIT chosen(place); });
    return *binding;
}

FieldBinding* BoundFields::find(const FieldPlace& place) const {
    return bindings_.value(controlName(place));
}

QWidget* BoundFields::control(const FieldPlace& place) const {
    const FieldBinding* binding = find(place);
    return binding ? &binding->widget() : nullptr;
}

void BoundFields::setTint(const FieldPlace& place, bool on) {
    if (FieldBinding* binding = find(place))
        binding->setTint(on);
}

void BoundFields::whitenAll() {
    for (FieldBinding* binding : std::as_const(bindings_))
        binding->setTint(false);
}

void BoundFields::showText(FieldPlace place) {
    if (FieldBinding* binding = find(place))
        binding->showField();
}

void BoundFields::SpellAttach(FieldPlace place) {
    QWidget* widget = control(place);
    if (widget && hooks_.spell)
        hooks_.spell(*widget);
}

void BoundFields::enableField(FieldPlace place, bool on) {
    if (QWidget* widget = control(place))
        widget->setEnabled(on);
}

void BoundFields::showFigureSentence(int figure) {
    if (hooks_.figureSentence)
        hooks_.figureSentence(figure);
}

} // namespace quillford
