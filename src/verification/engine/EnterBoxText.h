#pragma once

#include "core/fields/ProjectFields.h"

#include <QString>

/// The text in which a verification looks: what the user wrote about the invention. The element
/// tables and the names of the Main Elements are not in it, since they are what is looked for, and
/// neither are the fixed words of the Final Draft.
namespace quillford {

/// All that the user wrote, field by field in the order of the sections, with one blank between two
/// fields; an empty field adds just its blank.
///
/// @param enterBoxCount  grows by the number of fields that went in
[[nodiscard]] QString getAllEnterBoxWord(const ProjectFields& fields, int& enterBoxCount);

/// The text of one field in one line, without blanks at its ends. A field that is filled adds one
/// to `enterBoxCount`.
[[nodiscard]] QString getEnterBoxString(const Field& field, int& enterBoxCount);

/// The texts of a repeated field in one line, a blank between two members once there is any text.
/// Every member adds one to `enterBoxCount`, filled or not.
[[nodiscard]] QString getEnterBoxString(const FieldArray& fields, int& enterBoxCount);

/// The text without blanks at its ends, each run of line ends (CR LF) replaced by one blank.
[[nodiscard]] QString moveVbctrlf(QStringView text);

} // namespace quillford
