#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <cstddef>
#include <optional>
#include <span>

/// What a field is. The rows themselves stand in FieldRows.def.
namespace quillford {

/// The name of every field; the underlying number is the field's row in the table.
enum class FieldId {
#define QF_FIELD(name, ...) name,
#include "core/fields/FieldRows.def"
#undef QF_FIELD
};

/// The groups of panels on which fields repeat. A field of the group `Single` stands once.
enum class FieldGroup {
    Single,
    Inventors,
    Objects,
    Figures,
    MainElements, ///< the panels `picElement` of Section 5
    SubElements,  ///< the blocks `picElementUsers` of Section 6
    Descriptions, ///< the pairs `picfrmMainElementDes` of Section 7
};

inline constexpr std::size_t FieldGroupCount = 7;

inline constexpr FieldGroup RepeatingGroups[] = {FieldGroup::Inventors,   FieldGroup::Objects,
                                                 FieldGroup::Figures,     FieldGroup::MainElements,
                                                 FieldGroup::SubElements, FieldGroup::Descriptions};

/// Text and MultiLine are typed into, the latter with a vertical scroll bar or without; Combo takes
/// typing and a choice, List a choice only; Check is "0" or "1".
enum class FieldKind { Text, MultiLine, MultiLineNoBar, Combo, List, Check };

/// Whether the field's section needs it filled. ByList: its list has no empty row.
enum class FieldRequired { No, Yes, ByList };

/// What a drop-down list offers; the rows are in FieldLists.h.
enum class FieldListId {
    None,
    States,
    Countries,
    Citizenships,
    Views,
    InventorCounts,
    ObjectCounts,
    FigureCounts,
    MainElementCounts,
};

/// One row of the table. Everything in it lives as long as the program.
struct FieldRow {
    FieldId id;
    QStringView name; ///< the name of the field and of its control
    int section;      ///< 1 to 8
    FieldGroup group;
    FieldKind kind;
    int limit; ///< the longest text that can be typed, in characters; 0 for none
    FieldRequired required;
    FieldListId list;
    QStringView initial; ///< the value in a new project
    QStringView label;
};

/// All rows, in the order of FieldRows.def.
[[nodiscard]] std::span<const FieldRow> fieldTable();

[[nodiscard]] const FieldRow& fieldRow(FieldId id);

/// The row of the field with exactly this name, or null.
[[nodiscard]] const FieldRow* findFieldRow(QStringView name);

/// How many panels a group may have, and the field that holds the number. The groups of Sections 5
/// to 7 share the number of Main Elements.
struct GroupLimits {
    int least;
    int most;
    FieldId count;
};

/// The limits of a repeating group; `group` is not `Single`.
[[nodiscard]] const GroupLimits& groupLimits(FieldGroup group);

} // namespace quillford
