#pragma once

#include <QJsonObject>
#include <QWidget>

namespace quillford {

/// What the fields of the main form show, in the JSON form of a project: a text a field, a list of
/// them for a repeated one, as long as the number that is chosen and as there are panels.
[[nodiscard]] QJsonObject fieldsShown(const QWidget& form);

/// The section of each field, by its name.
[[nodiscard]] QJsonObject fieldSections();

} // namespace quillford
