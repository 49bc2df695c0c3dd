#pragma once

#include "draft/commands/ExportFormat.h"
#include "verification/engine/MissingList.h"

#include <QString>

namespace quillford {

/// The three lists of what was not found. A result form takes a copy and clears the shared ones.
struct MissingLists {
    MissingList missingMainElements{QStringLiteral("\r\n")}; ///< names as typed
    MissingList missingSubElements{QStringLiteral("\r\n")};  ///< names as typed
    MissingList missingNumerals{QStringLiteral(", ")};       ///< numerals without a colon

    void clear() noexcept {
        missingMainElements.clear();
        missingSubElements.clear();
        missingNumerals.clear();
    }
};

/// What the user asked of a verification: `Cancel` before it was started, `Exit` while it ran.
enum class StopRequest { None, Cancel, Exit };

/// The shared state of verification runs, kept for the life of the program. That a project has
/// passed is kept with the project, in `ProjectState`.
struct VerificationState {
    int verifyErrorCount = -1; ///< misses found in this run; -1 until the first one
    /// Only whoever shows the lists clears them: a run that was stopped leaves what it found, and
    /// the next run adds to that.
    MissingLists lists;
    StopRequest verifyState = StopRequest::None;
    bool verifyStopped = false; ///< the last run ended by a stop
    ExportFormat exportFormat = ExportFormat::None;
    int enterBoxCount = 0; ///< text fields that went into the corpus, over all runs
};

} // namespace quillford
