#pragma once

#include "base/Error.h"

#include <exception>
#include <optional>

namespace quillford {

/// Runs a composition, `bool()`, in which any failure of the run ends it with false. The failure is
/// put into `failure`, which is emptied first.
template <typename Composition>
bool trapFailures(std::optional<Error>& failure, Composition composition) {
    constexpr int UnexpectedFailure = 51; // the runtime's number for an internal error
    failure.reset();
    try {
        return composition();
    } catch (const Error& error) {
        failure = error;
    } catch (const std::exception& error) {
        failure.emplace(UnexpectedFailure, QString::fromUtf8(error.what()));
    }
    return false;
}

} // namespace quillford
