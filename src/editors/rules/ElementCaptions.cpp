#include "editors/rules/ElementCaptions.h"

#include "core/fields/FieldTable.h"
#include "draft/language/Ordinals.h"

namespace quillford {

QString mainElementCaption(int element) {
    return getOrdinalWord(element) + QStringLiteral(" Main Element");
}

QString elementDescriptionCaption(int element) {
    if (element == 0)
        return fieldRow(FieldId::txtElementDes).label.toString();
    return QStringLiteral("Describe the Structure and Function of the ") +
           mainElementCaption(element);
}

QString referenceNumberCaption(int element) {
    return mainElementCaption(element) + QStringLiteral(" (and Reference Number)");
}

QString subElementsCaption(int element) {
    return QStringLiteral("Sub-Elements for the ") + mainElementCaption(element);
}

int elementDescriptionStarLeft(int labelLeft, int labelWidth) {
    constexpr int Gap = 2;
    return labelLeft + labelWidth + Gap;
}

int mainElementStarLeft(int element) {
    const bool hasTwoDigits = element + 1 < 10;
    return hasTwoDigits ? 32 : 34;
}

QString labelElementsReminder() {
    return QStringLiteral("REMINDER:Make sure to label each of the Main Elements and Sub-Elements "
                          "within the figures you prepared in Step 4.");
}

} // namespace quillford
