#pragma once

#include <QString>

namespace quillford {

/// The word that counts a panel from its index: 0 gives "First", 14 gives "Fifteenth". There is no
/// word for any other number; it gives an empty text.
[[nodiscard]] QString getOrdinalWord(int number);

} // namespace quillford
