#pragma once

#include "core/fields/Project.h"

#include <QByteArray>
#include <QString>

namespace quillford {

/// Fills a new project from its JSON form: one object, keyed by the fields' names. A field that
/// stands once is a string (`chkSameAsContact` is 0 or 1, `verifyPassed` true or false), a repeated
/// one a list of strings, one for each panel. What is left out keeps the value of a new project,
/// and so do the members behind the end of a list that is shorter than its count. `Section Version`
/// and `Pictures`, which only a shown project has, are passed over.
///
/// Texts are taken as they are, over a field's limit too. Paths in `txtAttachFig` are made
/// absolute.
///
/// Raises `Error` naming the key for a name that is no field, a value of another type, a count that
/// its list does not offer and a list longer than its count; naming the byte for a text that is no
/// JSON. The project is then filled in part and of no use.
///
/// @param folder  the folder that relative paths start from
void readProjectJson(const QByteArray& json, const QString& folder, Project& project);

} // namespace quillford
