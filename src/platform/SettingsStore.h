#pragma once

#include "platform/SettingsValues.h"

#include <functional>

namespace quillford {

/// The persistent settings of the user, shared by all running programs of the user. What is written
/// is seen by every later `look` and `change`, of this program and of the others.
class SettingsStore {
public:
    using Look = std::function<void(const SettingsValues&)>;
    using Change = std::function<void(SettingsValues&)>;

    virtual ~SettingsStore() = default;

    /// Calls `step` once with the values as they stand. They hold still during the step: a change
    /// made meanwhile by another program is seen wholly or not at all. The reference is good until
    /// `step` returns. May be called inside a step of `change`, and then sees the values as they
    /// were before that change. Raises `Error` when the store is there and cannot be read; a store
    /// that is missing, or damaged in part, has no value where nothing can be understood.
    virtual void look(const Look& step) const = 0;

    /// Calls `step` once with the values as they stand, and writes them as the step leaves them.
    /// Between its reading and its writing no other program changes anything, so that a step may
    /// read values, shift them and write them. A failure keeps the old values whole, and what a
    /// step does not touch stays as it is, even where this program does not understand it. An
    /// exception out of `step` goes to the caller, and nothing is written.
    ///
    /// Raises `Error` before the step when the store cannot be read or locked within the store's
    /// time limit, or when called inside another step of `change`; after the step when the values
    /// cannot be written.
    virtual void change(const Change& step) = 0;
};

} // namespace quillford
