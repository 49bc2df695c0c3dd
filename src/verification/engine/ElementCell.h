#pragma once

#include "core/fields/ProjectFields.h"

#include <QString>

namespace quillford {

/// The place of one cell in the element tables: a Main Element or one of its nine Sub-Elements.
struct ElementCell {
    int panel = 0; ///< the index of the panel in `picElementUsers`, from 0
    int part = 0;  ///< 0 for `txtElementMain`, 1 to 9 for `txtElementSub1` to `txtElementSub9`

    [[nodiscard]] bool isSubElement() const noexcept { return part > 0; }

    /// The Reference Numeral, without the colon that stands behind it on screen.
    [[nodiscard]] QString numeral() const;

    /// What the cell's field is called, whether or not the project has that panel.
    [[nodiscard]] FieldId fieldId() const noexcept;

    /// The cell's field; the panel is one of the project's.
    [[nodiscard]] const Field& field(const ProjectFields& fields) const;

    [[nodiscard]] friend bool operator==(const ElementCell&, const ElementCell&) = default;
};

/// How many cells of the element tables are filled.
[[nodiscard]] int getElementsEnterNum(const ProjectFields& fields);

} // namespace quillford
