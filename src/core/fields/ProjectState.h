#pragma once

namespace quillford {

/// The state of the run beside the fields: plain values, none of them a second copy of a field.
struct ProjectState {
    /// Exports leave out the verification while this is true. Only a project that is read sets it.
    bool verifyPassed = false;
    /// True for the length of opening a project.
    bool isOpening = false;
};

} // namespace quillford
