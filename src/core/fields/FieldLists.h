#pragma once

#include "core/fields/FieldTable.h"

#include <QStringList>

namespace quillford {

/// The rows of a drop-down list, in the order in which they are shown; empty for `None`. The list
/// lives as long as the program.
[[nodiscard]] const QStringList& listRows(FieldListId list);

/// True when the text is exactly one of the five headings of the list of views, which can be
/// selected but never count as a chosen view.
[[nodiscard]] bool isViewHeading(QStringView text);

} // namespace quillford
