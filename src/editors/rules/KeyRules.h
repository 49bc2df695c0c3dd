#pragma once

#include "core/fields/FieldTable.h"

namespace quillford {

/// True for the fields of several lines in which Enter adds no line: a sentence is asked there. No
/// other key is kept from any field.
[[nodiscard]] constexpr bool swallowsEnter(FieldId field) {
    return field == FieldId::txtPurpose || field == FieldId::txtObject ||
           field == FieldId::txtMainElement;
}

} // namespace quillford
