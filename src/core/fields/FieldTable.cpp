#include "core/fields/FieldTable.h"

#include "core/fields/FieldLists.h"

#include <algorithm>
#include <array>

namespace quillford {

namespace {

QStringView initialText(QStringView initial, FieldListId list) {
    if (initial.isEmpty() && list != FieldListId::None)
        return listRows(list).first();
    return initial;
}

const auto& rows() {
    static const FieldRow table[] = {
#define QF_FIELD(name, section, group, kind, limit, required, list, initial, label)                \
    FieldRow{FieldId::name,                                                                        \
             u"" #name,                                                                            \
             section,                                                                              \
             FieldGroup::group,                                                                    \
             FieldKind::kind,                                                                      \
             limit,                                                                                \
             FieldRequired::required,                                                              \
             FieldListId::list,                                                                    \
             initialText(initial, FieldListId::list),                                              \
             label},
#include "core/fields/FieldRows.def"
#undef QF_FIELD
    };
    return table;
}

constexpr std::array<GroupLimits, FieldGroupCount> Limits{{
    {1, 1, FieldId::txtFileNo}, // Single has no limits of its own
    {1, 8, FieldId::cboInventorsNum},
    {1, 20, FieldId::cboObjectNum},
    {0, 50, FieldId::cboFiguresNum},
    {1, 15, FieldId::cboMainElementNum},
    {1, 15, FieldId::cboMainElementNum},
    {1, 15, FieldId::cboMainElementNum},
}};

} // namespace

std::span<const FieldRow> fieldTable() {
    return rows();
}

const FieldRow& fieldRow(FieldId id) {
    return rows()[static_cast<std::size_t>(id)];
}

const FieldRow* findFieldRow(QStringView name) {
    const auto table = fieldTable();
    const auto found = std::find_if(table.begin(), table.end(),
                                    [name](const FieldRow& row) { return row.name == name; });
    return found == table.end() ? nullptr : &*found;
}

const GroupLimits& groupLimits(FieldGroup group) {
    Q_ASSERT(group != FieldGroup::Single);
    return Limits[static_cast<std::size_t>(group)];
}

} // namespace quillford
