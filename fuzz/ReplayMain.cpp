// The main of a fuzz target built without libFuzzer: every file named on the command line, or
// found under a folder named there, goes through the target once, in path order. An empty
// corpus is an error, so that a corpus that went missing cannot pass.
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> inputsOf(int argc, char** argv) {
    std::vector<fs::path> files;
    for (int i = 1; i < argc; ++i) {
        const fs::path arg(argv[i]);
        if (!fs::is_directory(arg)) {
            files.push_back(arg);
            continue;
        }
        for (const auto& entry : fs::recursive_directory_iterator(arg))
            if (entry.is_regular_file()) files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

}  // namespace

int main(int argc, char** argv) {
    const auto files = inputsOf(argc, argv);
    if (files.empty()) {
        std::cerr << "usage: " << argv[0] << " FILE|FOLDER...  (no input found)\n";
        return 2;
    }
    for (const auto& file : files) {
        std::ifstream in(file, std::ios::binary);
        if (!in) {
            std::cerr << file.string() << ": cannot read\n";
            return 2;
        }
        const std::vector<uint8_t> data{std::istreambuf_iterator<char>(in), {}};
        std::cout << file.string() << std::endl;  // names the input that fails, if one does
        LLVMFuzzerTestOneInput(data.data(), data.size());
    }
    std::cout << files.size() << " inputs replayed\n";
    return 0;
}
