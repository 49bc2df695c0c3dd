#include "crash/FieldsShown.h"

#include "core/wizard/FocusOrder.h"
#include "typed/TypingUser.h"

#include <QHash>
#include <QJsonArray>

namespace quillford {

namespace {

/// A form has thousands of widgets, and a search for each of its fields would take longer than a
/// save.
class Controls {
public:
    explicit Controls(const QWidget& form) {
        for (const QWidget* widget : form.findChildren<QWidget*>())
            byName_.insert(widget->objectName(), widget);
    }

    [[nodiscard]] const QWidget* of(const FieldPlace& place) const {
        return byName_.value(controlName(place));
    }

    [[nodiscard]] int number(FieldId count) const {
        return TypingUser::textOf(*of({count, 0})).toInt();
    }

private:
    QHash<QString, const QWidget*> byName_;
};

QJsonArray panelsShown(const Controls& controls, const FieldRow& row) {
    const int count = controls.number(groupLimits(row.group).count);
    QJsonArray texts;
    for (int i = 0; i < count; ++i)
        if (const QWidget* control = controls.of({row.id, i}))
            texts.append(TypingUser::textOf(*control));
    return texts;
}

} // namespace

QJsonObject fieldsShown(const QWidget& form) {
    const Controls controls(form);
    QJsonObject fields;
    for (const FieldRow& row : fieldTable())
        if (row.group == FieldGroup::Single)
            fields[row.name.toString()] = TypingUser::textOf(*controls.of({row.id, 0}));
        else
            fields[row.name.toString()] = panelsShown(controls, row);
    return fields;
}

QJsonObject fieldSections() {
    QJsonObject sections;
    for (const FieldRow& row : fieldTable())
        sections[row.name.toString()] = row.section;
    return sections;
}

} // namespace quillford
