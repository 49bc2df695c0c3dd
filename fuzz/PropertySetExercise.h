#pragma once

#include <cstddef>
#include <span>

/// Reads `bytes` as a property-set stream, asks for all of it, changes it, writes it and reads it
/// again. It answers with the error of a damaged set or not at all; a promise that does not hold
/// ends the program. True when the bytes could be read.
bool exercisePropertySet(std::span<const std::byte> bytes);
