// The DLL's reading mode comes from QUORBEL_HOST_READS: only "literal" (any letter case) asks
// the host at every step; anything else, or nothing, keeps reads for the call.
#include <gtest/gtest.h>

#include <map>

#include "env/HostReads.h"
#include "native/SimPlatform.h"
#include "vb/Strings.h"

namespace {

// The simulated machine's platform with a process environment, which the simulated host has
// no need of: the one seam this reader needs.
class EnvPlatform : public native::SimPlatform {
  public:
    EnvPlatform() : native::SimPlatform(simulation_) {}
    std::map<vb::String, vb::String> variables;
    vb::String environmentVariable(const vb::String& name) override {
        const auto it = variables.find(name);
        return it == variables.end() ? vb::String() : it->second;
    }

  private:
    sim::Simulation simulation_{sim::World{}};
};

TEST(ReadMode, FromTheEnvironmentVariable) {
    struct Case {
        const char16_t* value;  // null: not set
        host::ReadMode mode;
    };
    const Case cases[] = {
        {nullptr, host::ReadMode::Cached},     {u"", host::ReadMode::Cached},
        {u"literal", host::ReadMode::Literal}, {u"LITERAL", host::ReadMode::Literal},
        {u"Literal", host::ReadMode::Literal}, {u"cached", host::ReadMode::Cached},
        {u" literal", host::ReadMode::Cached}, {u"literally", host::ReadMode::Cached},
    };
    for (const Case& c : cases) {
        EnvPlatform platform;
        if (c.value) platform.variables[u"QUORBEL_HOST_READS"] = c.value;
        EXPECT_EQ(env::modoLecturas(platform), c.mode)
            << (c.value ? vb::toUtf8(c.value) : std::string("(not set)"));
    }
}

TEST(ReadMode, OtherVariablesDoNotCount) {
    EnvPlatform platform;
    platform.variables[u"QUORBEL_HOST_READ"] = u"literal";
    platform.variables[u"HOST_READS"] = u"literal";
    EXPECT_EQ(env::modoLecturas(platform), host::ReadMode::Cached);
}

}  // namespace
