#pragma once

#include "core/fields/ProjectFields.h"
#include "draft/language/Paragraphs.h"
#include "draft/template/HTMLTemplate.h"

namespace quillford {

/// Sets the item "Element-" + `itemNumber` to one line of the Index of Elements: the numeral of the
/// cell, blanks, and its words in proper case, small words as typed, each with a blank behind it. A
/// blank cell gives an empty line.
///
/// On the HTML route a numeral with three digits has one blank less behind it, so that the words
/// stand below each other. On the Word route the line begins with a line end, except for the very
/// first, "10:".
void setIndexItem(TemplateItems& items, const Field& cell, const QString& numeral, int itemNumber,
                  Route route);

/// The ten lines of one Main Element, itself first. When there is no block of Sub-Elements for it
/// the nine items keep what they had.
void setIndexItems(TemplateItems& items, const ProjectFields& fields, int element, Route route);

/// Cuts the block "Disclosing Index" out of the block `parent` of a page and renders it once for
/// each Main Element.
void fillIndexBlock(HTMLTemplate& page, const QString& parent, const ProjectFields& fields);

} // namespace quillford
