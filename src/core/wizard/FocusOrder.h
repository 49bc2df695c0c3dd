#pragma once

#include "core/fields/ProjectFields.h"
#include "core/rules/GuidanceRules.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace quillford {

/// The name of a control on screen; a member of a control array has its index in round brackets.
[[nodiscard]] QString controlName(QStringView name, int index);

/// The name of a field's control.
[[nodiscard]] QString controlName(FieldPlace place);

/// The order in which the Tab key walks the controls: one number a control, `TabIndex`. The window
/// asks for the numbers when the key is pressed and walks those controls that are shown and
/// enabled, so that each section closes on itself.
class FocusOrder {
public:
    /// The number of a control, 0 as long as none was given.
    [[nodiscard]] int tabIndex(const QString& control) const { return numbers_.value(control); }

    /// False as long as the control was given no number.
    [[nodiscard]] bool hasNumber(const QString& control) const { return numbers_.contains(control); }

    void setTabIndex(const QString& control, int number) { numbers_.insert(control, number); }

    /// Gives `next` the number behind that of `previous`.
    void chainTabIndex(const QString& previous, const QString& next);

    /// Numbers the controls of a tab that is entered, in the order of `focusOrderOf`. A tab without
    /// an order of its own is left as it is.
    void enterTab(int tab, const ProjectFields& fields);

private:
    QHash<QString, int> numbers_;
};

/// The controls of a tab in the order of the Tab key, repeated ones panel by panel.
[[nodiscard]] QStringList focusOrderOf(int tab, const ProjectFields& fields);

} // namespace quillford
