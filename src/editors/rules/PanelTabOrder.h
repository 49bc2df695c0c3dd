#pragma once

#include "core/wizard/FocusOrder.h"

/// The numbers of the Tab key that the layouts give to the controls of their panels.
namespace quillford {

/// Numbers the controls of the panels `from` to `count` - 1 of a repeating group: each control
/// follows its member 0 at a distance of one panel's controls for each panel.
void numberPanels(FieldGroup group, int from, int count, FocusOrder& order);

/// The blocks of Section 6, ten numbers each, from their first one on.
void ResetSubElementTabOrder(int count, FocusOrder& order);

/// The inventors behind `chkSameAsContact`: the box follows the first inventor's last field, his
/// other fields follow the box, and the others follow him.
void numberInventors(int count, FocusOrder& order);

/// The page of Section 7: the descriptions, then `txtDesConnections`, then `txtDesAlterative`.
void numberDescriptions(int count, FocusOrder& order);

} // namespace quillford
