#pragma once

/// Prints a line for each element of the compound file, as libgsf reads it: the kind, the size and
/// the hash of its bytes, and the path. Gives the exit status.
int dumpWithGsf(const char* fileName);

/// Makes a compound file with sectors of `sectorSize` bytes with libgsf from lines of "storage
/// PATH" and "stream PATH SIZE SEED". Gives the exit status.
int makeWithGsf(const char* fileName, const char* specName, int sectorSize);
