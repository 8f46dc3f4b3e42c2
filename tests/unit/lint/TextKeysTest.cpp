// The TR_ keys of table 2 are listed once, in lint's textKeys(). The plug-in's code reads
// exactly those; the sample catalogues' texts (samples/textos.py, which both scenario
// generators use) have exactly those; and no scenario file writes a TR_ line nobody reads.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>

#include "lint/TextKeys.h"
#include "vb/Strings.h"

namespace {

namespace fs = std::filesystem;

using Keys = std::set<std::string>;

const fs::path kSource = QUORBEL_SOURCE_DIR;

Keys listed() {
    Keys keys;
    for (const auto& key : lint::textKeys()) keys.insert(vb::toUtf8(key.key));
    return keys;
}

std::string contents(const fs::path& file) {
    std::ifstream in(file);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// Every first group of `pattern` in the files under `folder` whose name passes `take`.
template <class Take>
Keys matches(const fs::path& folder, const std::regex& pattern, Take take) {
    Keys keys;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file() || !take(entry.path())) continue;
        const std::string text = contents(entry.path());
        for (std::sregex_iterator m(text.begin(), text.end(), pattern), end; m != end; ++m)
            keys.insert((*m)[1]);
    }
    return keys;
}

TEST(TextKeys, AreTheOnesThePluginsCodeReads) {
    const std::regex key(R"((TR_\d{4}))");
    Keys read;
    for (const char* folder : {"common", "rules", "dialog", "handlers", "wizard"})
        read.merge(matches(kSource / "src" / folder, key, [](const fs::path&) { return true; }));
    EXPECT_EQ(read, listed());
}

TEST(TextKeys, AreTheOnesTheSampleCataloguesHave) {
    const std::regex key(R"re("(TR_\d{4})")re");
    const fs::path file = kSource / "samples" / "textos.py";
    EXPECT_EQ(matches(file.parent_path(), key, [&](const fs::path& p) { return p == file; }),
              listed());
}

TEST(TextKeys, ScenarioFilesWriteNoOther) {
    const std::regex line(R"re("code"\s*:\s*"(TR_[^"]*)")re");
    const auto scenario = [](const fs::path& p) {
        const std::string name = p.filename().string();
        return p.extension() == ".json" && name.find(".expected.") == std::string::npos;
    };
    Keys written = matches(kSource / "samples", line, scenario);
    written.merge(matches(kSource / "tests" / "scenarios", line, scenario));
    const Keys known = listed();
    for (const auto& key : written) EXPECT_TRUE(known.count(key)) << key << " is read by nobody";
}

}  // namespace
