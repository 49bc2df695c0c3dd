#include "core/rules/Completeness.h"

#include "base/Text.h"
#include "core/fields/FieldLists.h"

#include <algorithm>

namespace quillford {

bool allFieldsFilled(const FieldArray& fields) {
    for (int i = 0; i < fields.count(); ++i)
        if (!fields(i).isFilled())
            return false;
    return true;
}

int countFieldsFilled(const FieldArray& fields) {
    int filled = 0;
    for (int i = 0; i < fields.count(); ++i)
        filled += fields(i).isFilled() ? 1 : 0;
    return filled;
}

VisibleFieldsFilled visibleFieldsFilled(const FieldArray& fields, int visible, bool isOpening) {
    using Answer = VisibleFieldsFilled::Answer;
    if (isOpening)
        visible = std::max(visible, 1);
    if (visible < 1)
        return {Answer::NothingEntered};
    int empty = 0;
    for (int i = 0; i < std::min(visible, fields.count()); ++i)
        empty += fields(i).isFilled() ? 0 : 1;
    if (empty == 0)
        return {Answer::AllFilled};
    if (empty == fields.count())
        return {Answer::NothingEntered};
    return {Answer::PartlyEntered, empty};
}

bool allViewsChosen(const FieldArray& views) {
    for (int i = 0; i < views.count(); ++i)
        if (!allViewsChosen(views, i))
            return false;
    return true;
}

bool allViewsChosen(const FieldArray& views, int index) {
    return !isViewHeading(trimBlanks(views(index).text()));
}

} // namespace quillford
