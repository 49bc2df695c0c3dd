#pragma once

#include "core/fields/ProjectFields.h"

#include <QList>

#include <optional>

/// Which fields a section guides its user to. It is asked of the fields and the section rules
/// alone, so that it stands beside those rules and below the navigation; setting colours and
/// focus is what the editors do with the answers.
namespace quillford {

/// A field on one panel; the index is 0 for a field that stands once.
struct FieldPlace {
    FieldId field;
    int index = 0;

    friend bool operator==(const FieldPlace&, const FieldPlace&) = default;
};

/// A call of `ScrollPanelTo`. The position that goes with it is 0 always: the column returns to its
/// top even when the field lies far below.
struct PanelScroll {
    int scrollIndex;
    int row;
    bool atEnd = false;

    friend bool operator==(const PanelScroll&, const PanelScroll&) = default;
};

/// What brings the user to a field: a scroll first, then the focus, either of which may be left
/// out.
struct FocusMove {
    std::optional<PanelScroll> scroll;
    std::optional<FieldPlace> focus;

    friend bool operator==(const FocusMove&, const FocusMove&) = default;
};

/// The required fields of a tab, 0 to 9, in the order in which the user meets them; repeated fields
/// panel by panel, for as many panels as the count field says and the project has.
[[nodiscard]] QList<FieldPlace> requiredFields(const ProjectFields& fields, int tab);

/// Those that get the tint: the empty ones, and views that are only headings. A field that is not
/// named is left as it is, tinted or not.
[[nodiscard]] QList<FieldPlace> fieldsToTint(const ProjectFields& fields, int tab);

/// The way to the first required field that is empty, or to the first figure whose file does not
/// exist. Nothing when there is none.
///
/// A figure's path is not typed, so that it gets the scroll and no focus; the same holds for the
/// first inventor's fields while they follow the contact.
[[nodiscard]] std::optional<FocusMove> firstFieldToEnter(const ProjectFields& fields, int tab);

} // namespace quillford
