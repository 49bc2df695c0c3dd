#include "CompoundExercise.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Any bytes may be a compound file.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    exerciseCompoundFile(std::as_bytes(std::span(data, size)));
    return 0;
}
