#pragma once

#include "base/Error.h"

#include <gtest/gtest.h>

namespace quillford {

/// The error that a call raises. A call that raises none fails the test.
template <typename Call>
Error errorOf(Call call) {
    try {
        call();
    } catch (const Error& error) {
        return error;
    }
    ADD_FAILURE() << "no error was raised";
    return Error(0, {});
}

} // namespace quillford
