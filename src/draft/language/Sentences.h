#pragma once

#include <QString>
#include <QStringView>

/// The ends and beginnings of sentences. Only blanks are trimmed: a tab or a line end belongs to
/// the sentence beside it. Nothing here can fail, and time grows with the length of the text.
namespace quillford {

/// Each sentence trimmed, its first character in upper case, and closed with ". ", so that the
/// result ends in a blank. Every "." ends a sentence, whatever stands around it: "3.5" becomes
/// "3. 5. ". A sentence without text drops out.
[[nodiscard]] QString capitalizeSentences(QStringView text);

/// The text without its outer blanks, closed with a period unless it ends in one. An empty text
/// stays empty. Periods further in and the case of the letters are left alone.
[[nodiscard]] QString withPeriod(QStringView text);

/// `withPeriod` of the text in lower case, as a middle name or initial needs it.
[[nodiscard]] QString lowerWithPeriod(QStringView text);

} // namespace quillford
