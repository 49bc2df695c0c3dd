#include "core/fields/ProjectFields.h"

#include <algorithm>
#include <utility>

namespace quillford {

namespace {

/// Where a field lies in the record, for access by name.
class MemberPlace {
public:
    constexpr MemberPlace(Field ProjectFields::*single) : single_(single) {}

    constexpr MemberPlace(FieldArray ProjectFields::*array) : array_(array) {}

    template <typename Fields>
    auto& field(Fields& fields, int index) const {
        return single_ ? fields.*single_ : (fields.*array_)(index);
    }

    template <typename Fields>
    auto& array(Fields& fields) const {
        Q_ASSERT(array_);
        return fields.*array_;
    }

    int count(const ProjectFields& fields) const { return single_ ? 1 : (fields.*array_).count(); }

private:
    Field ProjectFields::*single_ = nullptr;
    FieldArray ProjectFields::*array_ = nullptr;
};

constexpr MemberPlace Places[] = {
#define QF_FIELD(name, ...) &ProjectFields::name,
#include "core/fields/FieldRows.def"
#undef QF_FIELD
};

const MemberPlace& placeOf(FieldId id) {
    return Places[static_cast<std::size_t>(id)];
}

constexpr std::size_t slot(FieldGroup group) {
    return static_cast<std::size_t>(group);
}

} // namespace

ProjectFields::ProjectFields() {
    resizeGroup(FieldGroup::Inventors, groupLimits(FieldGroup::Inventors).most);
    for (const FieldGroup group : RepeatingGroups)
        setPanelCount(group, at(groupLimits(group).count).number());
}

Field& ProjectFields::at(FieldId id, int index) {
    return placeOf(id).field(*this, index);
}

const Field& ProjectFields::at(FieldId id, int index) const {
    return placeOf(id).field(*this, index);
}

const FieldArray& ProjectFields::array(FieldId id) const {
    return placeOf(id).array(*this);
}

int ProjectFields::count(FieldId id) const {
    return placeOf(id).count(*this);
}

int ProjectFields::panelCount(FieldGroup group) const {
    return panelCounts_[slot(group)];
}

void ProjectFields::setPanelCount(FieldGroup group, int count) {
    count = std::clamp(count, 1, groupLimits(group).most);
    const int before = std::exchange(panelCounts_[slot(group)], count);
    if (group == FieldGroup::Inventors)
        return emptyHiddenInventors(count, before);
    resizeGroup(group, count);
    if (group == FieldGroup::Figures)
        figureStates_.resize(static_cast<std::size_t>(count));
    if (group == FieldGroup::MainElements && count < before)
        emptyPartsOfElementsFrom(count);
}

FigureState& ProjectFields::figureState(int index) {
    return figureStates_.at(static_cast<std::size_t>(index));
}

const FigureState& ProjectFields::figureState(int index) const {
    return figureStates_.at(static_cast<std::size_t>(index));
}

void ProjectFields::tellChange(FieldId id, int index) {
    if (observer_)
        observer_->fieldChanged(id, index);
}

void ProjectFields::resizeGroup(FieldGroup group, int count) {
    for (const FieldRow& row : fieldTable())
        if (row.group == group)
            placeOf(row.id).array(*this).resize(count);
}

void ProjectFields::emptyHiddenInventors(int shown, int shownBefore) {
    for (int i = shown; i < shownBefore; ++i)
        for (const FieldRow& row : fieldTable())
            if (row.group == FieldGroup::Inventors)
                at(row.id, i).setText(
                    row.id == FieldId::cboCitizenshipStep2 ? row.initial.toString() : QString());
}

void ProjectFields::emptyPartsOfElementsFrom(int first) {
    for (const FieldRow& row : fieldTable()) {
        const bool part =
            row.group == FieldGroup::Descriptions ||
            (row.group == FieldGroup::SubElements && row.id != FieldId::txtElementMain);
        for (int i = first; part && i < count(row.id); ++i)
            at(row.id, i).setText(QString());
    }
}

} // namespace quillford
