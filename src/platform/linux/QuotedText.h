#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace quillford {

/// `text` between quotation marks, on one line whatever it holds: see `SettingsText` for the
/// escapes.
[[nodiscard]] QString quoted(QStringView text);

/// Reads the quoted text with which `rest` begins and moves `rest` behind it. Nothing, and `rest`
/// in an unspecified place, when there is none or it is damaged.
[[nodiscard]] std::optional<QString> takeQuoted(QStringView& rest);

} // namespace quillford
