#pragma once

#include <cstddef>
#include <span>

/// Opens any bytes as a project file, saves the project over it and opens that again. Aborts when
/// what was saved without an error into a file of sound structure does not come back, or when more
/// is read than there is. Gives whether the bytes were a project.
bool exerciseProjectFile(std::span<const std::byte> bytes);
