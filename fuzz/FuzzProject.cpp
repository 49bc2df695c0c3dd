#include "ProjectExercise.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Any bytes may be a project file.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    (void)exerciseProjectFile(std::as_bytes(std::span(data, size)));
    return 0;
}
