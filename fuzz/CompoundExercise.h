#pragma once

#include <cstddef>
#include <span>

/// Opens `bytes` as a compound file, reads all of it, changes it in every way, and opens it again.
/// It answers with the errors of the layer or not at all; a promise of the layer that does not hold
/// ends the program.
void exerciseCompoundFile(std::span<const std::byte> bytes);

/// Reads fields out of a stream: the first byte tells how many types follow it, and the rest is the
/// stream.
void exerciseFields(std::span<const std::byte> bytes);
