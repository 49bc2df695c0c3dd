#include "core/rules/GuidanceRules.h"

#include "core/rules/Completeness.h"

#include <QFileInfo>

#include <algorithm>

namespace quillford {

namespace {

/// The scroll bar of the column in which a group's panels stand.
int scrollIndexOf(FieldGroup group) {
    switch (group) {
    case FieldGroup::Inventors:
        return 0;
    case FieldGroup::Objects:
        return 1;
    case FieldGroup::Figures:
        return 2;
    case FieldGroup::MainElements:
        return 3;
    case FieldGroup::SubElements:
        return 4;
    case FieldGroup::Descriptions:
    case FieldGroup::Single:
        break;
    }
    return 5;
}

/// How many members of the field count. The text of the count may be ahead of the panels.
int shownCount(const ProjectFields& fields, const FieldRow& row) {
    if (row.group == FieldGroup::Single)
        return 1;
    return std::min(fields.at(groupLimits(row.group).count).number(), fields.count(row.id));
}

QList<const FieldRow*> requiredRows(int tab) {
    QList<const FieldRow*> rows;
    for (const FieldRow& row : fieldTable())
        if (row.section == tab + 1 && row.required == FieldRequired::Yes)
            rows.append(&row);
    return rows;
}

bool isFigureFileGone(const Field& field) {
    return field.row().id == FieldId::txtAttachFig && !QFileInfo(field.text()).isFile();
}

bool isHeading(const ProjectFields& fields, FieldPlace place) {
    return place.field == FieldId::cboFigureType &&
           !allViewsChosen(fields.cboFigureType, place.index);
}

std::optional<PanelScroll> scrollTo(const ProjectFields& fields, FieldPlace place) {
    const FieldRow& row = fieldRow(place.field);
    if (place.field == FieldId::txtDesConnections) // it stands under the descriptions' panels
        return PanelScroll{scrollIndexOf(FieldGroup::Descriptions),
                           fields.panelCount(FieldGroup::Descriptions)};
    if (row.group == FieldGroup::Single)
        return std::nullopt;
    const bool isLastObject =
        row.group == FieldGroup::Objects && place.index == shownCount(fields, row) - 1;
    return PanelScroll{scrollIndexOf(row.group), place.index, isLastObject};
}

bool takesFocus(const ProjectFields& fields, FieldPlace place) {
    if (place.field == FieldId::txtAttachFig)
        return false;
    const bool followsContact = fields.chkSameAsContact.number() != 0;
    return fieldRow(place.field).group != FieldGroup::Inventors || place.index > 0 ||
           !followsContact;
}

} // namespace

QList<FieldPlace> requiredFields(const ProjectFields& fields, int tab) {
    QList<FieldPlace> places;
    const QList<const FieldRow*> rows = requiredRows(tab);
    for (auto row = rows.begin(); row != rows.end();) {
        // Neighbours of one group stand on the same panels and are met panel by panel.
        const auto end = std::find_if(
            row, rows.end(), [&](const FieldRow* other) { return other->group != (*row)->group; });
        for (int i = 0; i < shownCount(fields, **row); ++i)
            for (auto member = row; member != end; ++member)
                places.append({(*member)->id, i});
        row = end;
    }
    return places;
}

QList<FieldPlace> fieldsToTint(const ProjectFields& fields, int tab) {
    QList<FieldPlace> places = requiredFields(fields, tab);
    places.removeIf([&fields](FieldPlace place) {
        return fields.at(place.field, place.index).isFilled() && !isHeading(fields, place);
    });
    return places;
}

std::optional<FocusMove> firstFieldToEnter(const ProjectFields& fields, int tab) {
    for (const FieldPlace place : requiredFields(fields, tab)) {
        const Field& field = fields.at(place.field, place.index);
        if (field.isFilled() && !isFigureFileGone(field))
            continue;
        const auto focus = takesFocus(fields, place) ? std::optional(place) : std::nullopt;
        return FocusMove{scrollTo(fields, place), focus};
    }
    return std::nullopt;
}

} // namespace quillford
