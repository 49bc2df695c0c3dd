#pragma once

#include <QString>
#include <QStringView>

/// The articles that the draft puts before what the inventor typed. They follow from the letters
/// alone; there is no dictionary, and the exceptions of English are absent on purpose, so that the
/// wording of a draft can be foretold. Nothing here can fail.
namespace quillford {

/// "an" before a text that begins with A, E, I, O or U in either case, otherwise "a", also before
/// an empty text. Only that first character is looked at ("a hour", "an unit").
[[nodiscard]] QString isVowelInitial(QStringView text);

/// The country without its outer blanks. One of the six whose name needs it has "the " in front and
/// is spelt as in the list of citizenships, however it was typed; any other stands as typed.
[[nodiscard]] QString citizenshipText(QStringView country);

} // namespace quillford
