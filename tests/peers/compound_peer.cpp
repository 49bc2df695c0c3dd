#include "Fnv.h"
#ifdef QUILLFORD_HAS_GSF
#include "gsf_peer.h"
#endif

#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace {

constexpr int NotThere = 77;

int hashOfInput() {
    Fnv hash;
    std::vector<unsigned char> block(65536);
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), stdin))
        hash.add(block.data(), count);
    std::printf("%016llx\n", static_cast<unsigned long long>(hash.value()));
    return 0;
}

} // namespace

/// compound_peer fnv < BYTES; and, where libgsf is installed, compound_peer gsf-dump FILE and
/// compound_peer gsf-make FILE SPEC SECTOR-SIZE.
int main(int argc, char** argv) {
    const std::string_view call = argc > 1 ? argv[1] : "";
    if (call == "fnv")
        return hashOfInput();
#ifdef QUILLFORD_HAS_GSF
    if (call == "gsf-dump" && argc == 3)
        return dumpWithGsf(argv[2]);
    if (call == "gsf-make" && argc == 5)
        return makeWithGsf(argv[2], argv[3], std::atoi(argv[4]));
#endif
    return NotThere;
}
