#pragma once

#include "core/settings/mdlSystem.h"
#include "platform/Clock.h"

namespace quillford {

/// Waits, handling window events, until the seconds have gone by at the clock's pace. Ends early
/// when the program is told to exit. Events that are waiting already are handled also where there
/// is nothing to wait for.
void Pause(int seconds, Clock& clock, const mdlSystem& system);

} // namespace quillford
