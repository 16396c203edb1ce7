#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerInitialize(int *, char ***);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size);

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> filesOf(const fs::path &path)
{
    if (!fs::is_directory(path))
        return { path };
    std::vector<fs::path> result;
    for (const fs::directory_entry &entry : fs::directory_iterator(path)) {
        if (entry.is_regular_file())
            result.push_back(entry.path());
    }
    std::sort(result.begin(), result.end());
    return result;
}

/// Passes the input in separate memory, so that a sanitizer sees every read beyond its end.
bool replay(const fs::path &path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        std::fprintf(stderr, "cannot read %s\n", path.c_str());
        return false;
    }
    const std::vector<char> bytes { std::istreambuf_iterator<char>(file), {} };
    std::fprintf(stderr, "%s\n", path.c_str()); // the last one is the one that fails
    const std::vector<uint8_t> input(bytes.begin(), bytes.end());
    LLVMFuzzerTestOneInput(input.data(), input.size());
    return true;
}

}

/// Runs the target once for every file, and for every file of a folder, in builds without libFuzzer.
int main(int argc, char *argv[])
{
    LLVMFuzzerInitialize(&argc, &argv);
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        for (const fs::path &path : filesOf(argv[i])) {
            if (!replay(path))
                return 2;
            ++count;
        }
    }
    std::fprintf(stderr, "%d inputs\n", count);
    return count > 0 ? 0 : 2;
}
