#include "core/rules/ProjectNames.h"

namespace quillford {

namespace {

bool isName(const FieldRow& row) {
    switch (row.id) {
    case FieldId::txtNameStep2:
    case FieldId::txtMIStep2:
    case FieldId::txtLastStep2:
    case FieldId::txtElementName:
        return true;
    default:
        return row.group == FieldGroup::SubElements;
    }
}

} // namespace

QStringList projectNames(const ProjectFields& fields) {
    QStringList names;
    for (const FieldRow& row : fieldTable())
        for (int i = 0; isName(row) && i < fields.count(row.id); ++i)
            if (const Field& field = fields.at(row.id, i); field.isFilled())
                names.append(field.text());
    return names;
}

} // namespace quillford
