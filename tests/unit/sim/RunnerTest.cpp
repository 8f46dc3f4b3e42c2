// Playing calls: dispatch by name, arguments and their coercion, errors kept inside the call,
// sessions across calls, and the transcript's shape.
#include <gtest/gtest.h>

#include "native/RunScenario.h"

namespace {

using sim::Json;

Json play(const std::string& calls) {
    return native::runScenarioText(R"({"scene":[{"id":100,"info":{"0":"forma10"}}],"calls":)" +
                                   calls + "}");
}

TEST(Runner, ErrorsStayInsideTheirCall) {
    const Json t = play(R"([
        {"class":"Plugin","method":"NoSuchThing"},
        {"class":"Plugin","method":"modeloValido","args":["a"]},
        {"class":"Plugin","method":"OnAppStartAfter","args":[1]},
        {"class":"Plugin","method":"InicEspMod","args":["x","Pelmora.Catalog"]},
        {"class":"Plugin","method":"InicEspMod","args":[0,"Pelmora.Nothing"]},
        {"class":"Plugin","method":"SceneCheck"}])");
    const auto& calls = t["calls"];
    ASSERT_EQ(calls.size(), 6u);
    EXPECT_EQ(calls[0]["error"]["number"], 438);
    EXPECT_NE(calls[0]["error"]["description"].get<std::string>().find("Plugin.NoSuchThing"),
              std::string::npos);
    EXPECT_EQ(calls[1]["error"]["number"], 450);
    EXPECT_EQ(calls[2]["error"]["number"], 450);
    EXPECT_EQ(calls[3]["error"]["number"], 13);
    EXPECT_EQ(calls[4]["error"]["number"], 429);
    EXPECT_TRUE(calls[5]["error"].is_null());  // the next call still runs
    EXPECT_EQ(calls[5]["result"], false);
}

TEST(Runner, ArgumentsComeBackAfterTheCall) {
    const Json t = play(R"([
        {"class":"Plugin","method":"modeloValido","args":["@MOD", 12, true]},
        {"class":"Wizard","method":"modeloValido","args":["a","b","c"]}])");
    const Json& call = t["calls"][0];
    EXPECT_EQ(call["args"], Json::array({"@MOD", "12", "True"}));
    // Keys in the documented order.
    std::vector<std::string> keys;
    for (const auto& item : call.items()) keys.push_back(item.key());
    EXPECT_EQ(keys, (std::vector<std::string>{"class", "method", "result", "error", "events",
                                              "hostCalls", "args"}));
}

TEST(Runner, SessionsCountAcrossTheScenario) {
    const Json t = play(R"([
        {"class":"Plugin","method":"OnAppStartAfter"},
        {"class":"Plugin","method":"OnAppStartAfter","session":false},
        {"class":"Plugin","method":"OnAppStartAfter"}])");
    EXPECT_EQ(t["calls"][0]["events"][0]["args"][0], 1);
    EXPECT_TRUE(t["calls"][1]["events"].empty());
    EXPECT_EQ(t["calls"][2]["events"][0]["args"][0], 2);
}

}  // namespace
