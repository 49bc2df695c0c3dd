#pragma once

#include "core/fields/Field.h"

namespace quillford {

/// True when no member is empty or blank, shown or not. Looks no further than the first empty one.
[[nodiscard]] bool allFieldsFilled(const FieldArray& fields);

/// The same question asked for a number: how many members are filled.
[[nodiscard]] int countFieldsFilled(const FieldArray& fields);

/// What `visibleFieldsFilled` answers. Only `AllFilled` makes a section complete; the other two are
/// kept apart for callers that tell nothing entered from partly entered.
struct VisibleFieldsFilled {
    enum class Answer { AllFilled, NothingEntered, PartlyEntered };
    Answer answer;
    /// With `PartlyEntered`, how many visible members are empty; otherwise 0.
    int emptyFields = 0;
};

/// Looks at the members on visible panels. `NothingEntered` comes when the first panel is not
/// visible, or when as many visible members are empty as the array has members, hidden ones
/// counted: two empty inventors out of eight panels are `PartlyEntered`.
///
/// @param visible    the number of panels that are visible, from the first on
/// @param isOpening  a project is being opened: the first panel is taken as visible
[[nodiscard]] VisibleFieldsFilled visibleFieldsFilled(const FieldArray& fields, int visible,
                                                      bool isOpening);

/// True when no member holds one of the headings of the list of views, blanks at its ends set
/// aside. An empty member passes.
[[nodiscard]] bool allViewsChosen(const FieldArray& views);

/// The same for the one member `index`.
[[nodiscard]] bool allViewsChosen(const FieldArray& views, int index);

} // namespace quillford
