#pragma once

#include "base/Error.h"

#include <optional>
#include <utility>

namespace quillford {

/// Runs the statements of a reading one after the other. One that fails is passed over as if it had
/// not been there, and the next one runs: a damaged project stays open with what could be read.
/// Statements are small on purpose, one value each, since what stands behind the failure in the
/// same statement is lost with it.
class ResumeNext {
public:
    /// Runs `statement`; true when it ran to its end. Only an `Error` is passed over.
    template <typename Statement>
    bool operator()(Statement&& statement) {
        try {
            std::forward<Statement>(statement)();
            return true;
        } catch (const Error& error) {
            if (!first_)
                first_ = error;
            return false;
        }
    }

    /// The first failure that was passed over, or nothing.
    [[nodiscard]] const std::optional<Error>& firstFailure() const noexcept { return first_; }

private:
    std::optional<Error> first_;
};

} // namespace quillford
