// Strict loading: every mistake names its JSON path; a good file builds the world it says. (The
// calls' fields, a file's name in its message and the syntax error's place are pinned by the
// golden scenarios and tests/tools/check-cli.)
#include <gtest/gtest.h>

#include "../CaseNames.h"
#include "sim/ScenarioLoader.h"

namespace {

struct BadCase {
    const char* json;
    const char* message;
};
void PrintTo(const BadCase& c, std::ostream* os) {
    *os << c.message;
}

class LoaderRejects : public ::testing::TestWithParam<BadCase> {};

TEST_P(LoaderRejects, NamesThePlace) {
    try {
        sim::loadScenario(GetParam().json);
        FAIL() << "loaded: " << GetParam().json;
    } catch (const sim::ScenarioError& e) {
        EXPECT_EQ(std::string(e.what()), GetParam().message);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Mistakes, LoaderRejects,
    ::testing::Values(
        BadCase{R"({"scene":[{"id":1,"info":{"12":650}}]})", "scene[0].info.12: expected a string"},
        BadCase{R"({"scenes":[]})", "scenes: unknown key"},
        BadCase{R"({"application":{"langage":"ESP"}})", "application.langage: unknown key"},
        BadCase{R"({"application":{"decimalSeparator":".,"}})",
                "application.decimalSeparator: expected one character"},
        BadCase{R"({"application":{"files":{"C:\\a.ini":{"size":-1}}}})",
                "application.files.C:\\a.ini.size: expected a size of 0 or more"},
        BadCase{R"({"application":{"files":{"C:\\a.ini":3}}})",
                R"(application.files.C:\a.ini: expected a string or { "size": N })"},
        BadCase{R"({"catalogs":{"C:\\c.cat":{"tables":{"x":[]}}}})",
                "catalogs.C:\\c.cat.tables.x: expected a number as the key"},
        BadCase{R"({"catalogs":{"C:\\c.cat":{"tables":{"2":[{"cols":{"9":1}}]}}}})",
                "catalogs.C:\\c.cat.tables.2[0].cols.9: expected a string"},
        BadCase{R"({"scene":[{"id":1,"children":[-2]}]})",
                "scene[0].children[0]: expected an object or -1"},
        BadCase{R"({"scene":[{"id":1},{"id":1}]})", "scene[1].id: id 1 is used twice"},
        BadCase{R"({"scene":[{"info":{}}]})", "scene[0].id: missing"},
        BadCase{R"({"scene":[{"id":1.5}]})", "scene[0].id: expected an integer"},
        BadCase{R"({"scene":[{"id":1,"parent":7}]})", "scene[0].parent: expected -1 or -2"},
        BadCase{R"({"calls":[{"class":"Plugins","method":"X"}]})",
                R"(calls[0].class: expected "Plugin" or "Wizard")"},
        BadCase{R"({"calls":[{"class":"Plugin","method":"X","session":0}]})",
                "calls[0].session: expected true or false"},
        BadCase{R"({"calls":[{"class":"Plugin","method":"X","args":[[1]]}]})",
                "calls[0].args[0]: expected a string, a number, true, false or null"},
        BadCase{R"({"calls":[{"class":"Plugin","method":"X","ui":[{"do":"tap"}]}]})",
                "calls[0].ui[0].do: expected one of click, mouseDown, mouseUp, listClick, type, "
                "paste, scroll, snapshot, close"},
        BadCase{R"({"calls":[{"class":"Plugin","method":"X","ui":[{"do":"click"}]}]})",
                "calls[0].ui[0].control: missing"},
        BadCase{R"({"calls":[{"class":"Plugin","method":"X","ui":[{"do":"snapshot","x":1}]}]})",
                "calls[0].ui[0].x: unknown key"},
        BadCase{R"([1])", "(top level): expected an object"},
        // A key written twice would be taken from its last occurrence without a word.
        BadCase{R"({"scene":[],"scene":[]})",
                "scene: written twice in one object (the format keeps no duplicate key)"},
        BadCase{R"({"scene":[{"id":1},{"id":2,"info":{"12":"1","13":"2","12":"3"}}]})",
                "scene[1].info.12: written twice in one object (the format keeps no duplicate "
                "key)"},
        BadCase{R"({"calls":[{"class":"Plugin","method":"X","args":[1,[{"a":1,"a":2}]]}]})",
                "calls[0].args[1][0].a: written twice in one object (the format keeps no "
                "duplicate key)"}),
    [](const auto& info) { return casos::nombreValido(info.param.message); });

// An object at depth `depth` below the top level, inside its ancestors.
std::string nested(int depth) {
    std::string json = R"({"scene":[)";
    for (int d = 0; d <= depth; ++d)
        json += R"({"id":)" + std::to_string(d + 1) + R"(,"children":[)";
    for (int d = 0; d <= depth; ++d) json += "]}";
    return json + "]}";
}

// Objects nested some 17,000 levels deep (a 500 KB file) overflowed the stack.
TEST(Loader, RefusesObjectsNestedTooDeep) {
    EXPECT_NO_THROW(sim::loadScenario(nested(2500)));
    std::string where = "scene[0]";
    for (int d = 0; d < 2501; ++d) where += ".children[0]";
    try {
        sim::loadScenario(nested(2501));
        FAIL() << "loaded 2501 levels";
    } catch (const sim::ScenarioError& e) {
        EXPECT_EQ(std::string(e.what()), where + ": objects nested more than 2500 deep");
    }
    EXPECT_THROW(sim::loadScenario(nested(30000)), sim::ScenarioError);
}

// A number beyond a double (1e312) failed otherwise than a syntax error and ended the runner.
TEST(Loader, InvalidJsonIsAnError) {
    for (const char* text : {"{\"scene\": [", "1e312", R"({"scene": [{"id": -1e400}]})"}) {
        try {
            sim::loadScenario(text);
            ADD_FAILURE() << text;
        } catch (const sim::ScenarioError& e) {
            EXPECT_EQ(std::string(e.what()).rfind("invalid JSON: ", 0), 0u) << e.what();
            EXPECT_EQ(std::string(e.what()).find("json.exception"), std::string::npos) << e.what();
        }
    }
}

TEST(Loader, BuildsTheWorldItDescribes) {
    const auto s = sim::loadScenario(R"({
      "application": { "files": { "C:\\Cat\\forma10.cat": { "size": 0 },
                                  "C:\\Quorbel\\SPACE.INI": "[Local]\r\n" } },
      "catalogs": { "C:\\Cat\\forma10.cat": {}, "C:\\Cat\\B\\xey10.cat": { "language": "ENG" } },
      "scene": [ { "id": 100, "children": [ { "id": 101, "children": [ { "id": 102 } ] }, -1,
                                            { "id": 103 } ] },
                 { "id": 200, "parent": -2 } ]
    })");
    const auto& world = s->world;
    EXPECT_EQ(world.scene.order(), (std::vector<int32_t>{100, 101, 102, 103, 200}));
    EXPECT_EQ(world.scene.find(100)->children, (std::vector<int32_t>{101, -1, 103}));
    EXPECT_EQ(world.scene.find(102)->parent, 101);
    EXPECT_EQ(world.scene.find(100)->parent, -1);
    EXPECT_EQ(world.scene.find(200)->parent, -2);
    // `files` decides a catalogue's size; otherwise a catalogue file is 1024 bytes.
    EXPECT_EQ(world.files.fileSize(u"c:\\cat\\FORMA10.CAT"), 0);
    EXPECT_EQ(world.files.fileSize(u"C:\\Cat\\B\\xey10.cat"), 1024);
    EXPECT_EQ(world.catalog(u"c:\\cat\\b\\XEY10.cat")->language, u"ENG");
}

}  // namespace
