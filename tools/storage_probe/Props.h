#pragma once

#include "persistence/project/DocProperties.h"

#include <QByteArray>

/// The values of the property sets that are there, in UTF-8: a line for each set and, indented, one
/// for each of its properties with identifier, name and value. Raises the errors of `properties`
/// but the one of a set that is not there.
[[nodiscard]] QByteArray propsAsText(const quillford::DocProperties& properties);
