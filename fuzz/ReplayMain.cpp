#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Gives every file of the folders named on the command line to the fuzz target, without the
/// fuzzing compiler. A folder without a file is an error: a replay of nothing proves nothing.
int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        std::size_t count = 0;
        for (const auto& file : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream in(file.path(), std::ios::binary);
            std::vector<char> bytes{std::istreambuf_iterator<char>(in), {}};
            std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
            std::printf("%s\n", file.path().filename().c_str());
            std::fflush(stdout);
            LLVMFuzzerTestOneInput(input.data(), input.size());
            ++count;
        }
        if (count == 0)
            return 1;
    }
    return 0;
}
