#pragma once

#include "core/fields/FieldTable.h"

#include <QString>

namespace quillford {

/// How many Sub-Elements a Main Element can have.
inline constexpr int SubElementCount = 9;

/// The field of Sub-Element `part`, 1 to 9.
[[nodiscard]] constexpr FieldId subElementField(int part) {
    return static_cast<FieldId>(static_cast<int>(FieldId::txtElementSub1) + part - 1);
}

/// The Reference Numeral of Main Element `element`, from 0, for `part` 0, and of its Sub-Element
/// `part`, 1 to 9: "10" and "11" to "19" for the first, "150" to "159" for the fifteenth. Numerals
/// follow from the place in the tables alone and are stored nowhere.
[[nodiscard]] inline QString referenceNumeral(int element, int part = 0) {
    return QString::number(element + 1) + QString::number(part);
}

/// The numeral as it is shown beside its field, with a colon: "10:".
[[nodiscard]] inline QString referenceLabel(int element, int part = 0) {
    return referenceNumeral(element, part) + u':';
}

} // namespace quillford
