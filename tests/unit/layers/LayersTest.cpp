// The include rule of docs/architecture.md, read from its table: every folder of src/ has a layer,
// and every `#include "folder/..."` under src/ points into the file's own folder or down.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

using Layers = std::map<std::string, int>;  // folder -> layer, from 1 at the bottom

const fs::path kSource = QUORBEL_SOURCE_DIR;

// The rows "| 4 | `common` | ... |" of the table.
Layers readLayers(const fs::path& document) {
    std::ifstream in(document);
    const std::regex row(R"(^\|\s*(\d+)\s*\|\s*`([a-z]+)`\s*\|)");
    Layers layers;
    std::smatch m;
    for (std::string line; std::getline(in, line);)
        if (std::regex_search(line, m, row)) layers[m[2]] = std::stoi(m[1]);
    return layers;
}

// Why a file of folder `from` may not include from folder `to`; "" when it may.
std::string fault(const Layers& layers, const std::string& from, const std::string& to) {
    if (to == from) return {};
    const auto f = layers.find(from);
    const auto t = layers.find(to);
    if (f == layers.end()) return "its folder " + from + " has no layer";
    if (t == layers.end()) return to + " has no layer";
    if (t->second > f->second)
        return to + " (layer " + std::to_string(t->second) + ") is above " + from + " (layer " +
               std::to_string(f->second) + ")";
    if (t->second == f->second) return to + " is beside " + from + " in one layer";
    return {};
}

struct Include {
    std::string where;   // "src/rules/Mensajes.cpp:5"
    std::string from;    // the including file's folder
    std::string folder;  // the first part of the included path
};

std::vector<Include> includesUnderSrc() {
    const std::regex include(R"re(^\s*#\s*include\s*"([^"/]+)/)re");
    std::vector<Include> found;
    std::smatch m;
    for (const auto& entry : fs::recursive_directory_iterator(kSource / "src")) {
        const auto ext = entry.path().extension();
        if (!entry.is_regular_file() || (ext != ".h" && ext != ".cpp")) continue;
        const fs::path relative = fs::relative(entry.path(), kSource / "src");
        std::ifstream in(entry.path());
        int number = 0;
        for (std::string line; std::getline(in, line);) {
            ++number;
            if (!std::regex_search(line, m, include)) continue;
            found.push_back({"src/" + relative.generic_string() + ":" + std::to_string(number),
                             relative.begin()->string(), m[1]});
        }
    }
    return found;
}

TEST(Layers, EveryFolderOfSrcHasALayer) {
    const Layers layers = readLayers(kSource / "docs" / "architecture.md");
    ASSERT_FALSE(layers.empty()) << "docs/architecture.md has no table";
    for (const auto& entry : fs::directory_iterator(kSource / "src")) {
        const std::string folder = entry.path().filename().string();
        if (!entry.is_directory()) continue;
        EXPECT_TRUE(layers.count(folder)) << "src/" << folder << " is not in docs/architecture.md";
    }
}

TEST(Layers, IncludesPointDown) {
    const Layers layers = readLayers(kSource / "docs" / "architecture.md");
    for (const Include& include : includesUnderSrc()) {
        const std::string why = fault(layers, include.from, include.folder);
        EXPECT_TRUE(why.empty()) << include.where << ": includes from " << include.folder
                                 << ", but " << why;
    }
}

TEST(Layers, TheRuleRefusesSidewaysUpwardsAndUnlisted) {
    const Layers layers = {{"vb", 1}, {"host", 2}, {"platform", 2}, {"rules", 3}};
    const struct {
        const char *from, *to;
        bool allowed;
    } cases[] = {
        {"rules", "rules", true},    {"rules", "vb", true},  {"rules", "host", true},
        {"host", "platform", false}, {"vb", "rules", false}, {"rules", "handlers", false},
        {"rules", "..", false},      {"extra", "vb", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(fault(layers, c.from, c.to).empty(), c.allowed) << c.from << " -> " << c.to;
}

}  // namespace
