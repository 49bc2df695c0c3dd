#include "verification/engine/ElementCell.h"

#include "core/rules/ReferenceNumerals.h"

namespace quillford {

QString ElementCell::numeral() const {
    return referenceNumeral(panel, part);
}

FieldId ElementCell::fieldId() const noexcept {
    return isSubElement() ? subElementField(part) : FieldId::txtElementMain;
}

const Field& ElementCell::field(const ProjectFields& fields) const {
    return fields.at(fieldId(), panel);
}

int getElementsEnterNum(const ProjectFields& fields) {
    int filled = 0;
    for (int panel = 0; panel < fields.panelCount(FieldGroup::SubElements); ++panel)
        for (int part = 0; part <= SubElementCount; ++part)
            if (ElementCell{panel, part}.field(fields).isFilled())
                ++filled;
    return filled;
}

} // namespace quillford
