#include "core/fields/SaveFlag.h"

#include <algorithm>

namespace quillford {

namespace {

bool isAnyChanged(const ProjectFields& fields, FieldId id) {
    for (int i = 0; i < fields.count(id); ++i)
        if (fields.at(id, i).isChanged())
            return true;
    return false;
}

} // namespace

bool GetSaveFlag(const ProjectFields& fields, ProjectState& state) {
    const auto table = fieldTable();
    state.saveFlag = state.saveFlag ||
                     std::any_of(table.begin(), table.end(),
                                 [&](const FieldRow& row) { return isAnyChanged(fields, row.id); });
    return state.saveFlag;
}

void ResetSaveFlag(ProjectFields& fields, ProjectState& state) {
    clearChangedMarks(fields);
    state.saveFlag = false;
}

void clearChangedMarks(ProjectFields& fields) {
    for (const FieldRow& row : fieldTable())
        for (int i = 0; i < fields.count(row.id); ++i)
            fields.at(row.id, i).clearChanged();
}

} // namespace quillford
