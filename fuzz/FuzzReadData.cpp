#include "CompoundExercise.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Any bytes may be the fields of a stream.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    exerciseFields(std::as_bytes(std::span(data, size)));
    return 0;
}
