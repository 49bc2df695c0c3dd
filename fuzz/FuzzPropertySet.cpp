#include "PropertySetExercise.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Any bytes may be a property-set stream.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    (void)exercisePropertySet(std::as_bytes(std::span(data, size)));
    return 0;
}
