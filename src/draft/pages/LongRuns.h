#pragma once

#include <QTextDocument>

namespace quillford {

/// The most characters that stand in a row without a place at which a line may end.
inline constexpr int LongestRun = 2000;

/// Puts a break without width after each `LongestRun` characters of the document among which there
/// is no blank. The time in which the toolkit breaks such a run into lines grows with its square:
/// a million characters take half a minute without the breaks, and a third of a second with them.
void breakLongRuns(QTextDocument& document);

} // namespace quillford
