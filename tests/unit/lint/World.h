#pragma once
// A small clean world for the lint tests: one catalogue whose rule tables lint without a
// line, and a cabinet of it; each test changes one thing and names the lines lint must print.
#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "lint/Lint.h"
#include "lint/TextKeys.h"
#include "sim/Json.h"
#include "sim/ScenarioLoader.h"
#include "vb/Strings.h"

namespace lint_test {

using sim::Json;

inline Json textLine(const std::string& code, const std::string& text) {
    return {{"code", code}, {"cols", {{"9", text}}}};
}

inline Json ruleLine(const std::string& code, const std::string& text) {
    return {{"code", code}, {"cols", {{"2", text}}}};
}

inline Json modelLine(const std::string& code, const std::string& name,
                      const std::string& script = "PUERTA") {
    return {{"code", code}, {"cols", {{"1", code}, {"3", name}, {"4", script}}}};
}

// Every text the plug-in reads has a line; the two diagonal names are texts a person would write.
inline Json textLines() {
    Json lines = Json::array();
    for (const auto& key : lint::textKeys()) {
        const std::string code = vb::toUtf8(key.key);
        const std::string text = code == "TR_0046"   ? "Diagonal por longitudes"
                                 : code == "TR_0047" ? "Diagonal por ángulo"
                                                     : "texto " + code;
        lines.push_back(textLine(code, text));
    }
    return lines;
}

inline Json cleanCatalogue() {
    Json t2 = textLines();
    t2.push_back(ruleLine("MO_EA", "MO: M01"));
    for (const char* code : {"MO_EAl", "MO_EF", "MO_EAAl", "MO_EAF", "MO_EAlF"})
        t2.push_back(ruleLine(code, "MO: M01 M02"));
    // A placement keeps a change of all three measures on a cabinet whose only marker is
    // "EAAF_", whatever the door model: the dialog agrees only when every model has the type.
    t2.push_back(ruleLine("MO_EAAlF", "MO: ALL"));
    t2.push_back(ruleLine("EX_EA", "EX: B60-TIBER"));
    for (const char* code : {"EX_EAl", "EX_EF", "EX_EAA", "EX_EAF", "EX_EAlF", "EX_EAAF"})
        t2.push_back(ruleLine(code, "EX:"));
    Json article = {{"name", "B60"}, {"cols", {{"3", "600"}, {"4", "560"}, {"5", "720"}}}};
    return {{"language", "ESP"},
            {"tables",
             {{"2", t2},
              {"3", Json::array({article})},
              {"8", Json::array({modelLine("M01", "TIBER"), modelLine("M02", "MONZA")})}}}};
}

inline Json cleanWorld() {
    Json cabinet = {{"id", 100},
                    {"info", {{"0", "a"}, {"2", "40"}, {"7", "B60"}, {"8", "B60-TIBER"}}}};
    return {{"catalogs", {{"C:\\Cat\\a.cat", cleanCatalogue()}}},
            {"scene", Json::array({cabinet})}};
}

inline Json& tableOf(Json& world, int table, const std::string& catalog = "C:\\Cat\\a.cat") {
    return world["catalogs"][catalog]["tables"][std::to_string(table)];
}

// The line of that code (or name) in the first catalogue; the test fails on a missing one.
inline Json& lineOf(Json& world, int table, const std::string& key) {
    for (auto& line : tableOf(world, table))
        if (line.value("code", "") == key || line.value("name", "") == key) return line;
    throw std::runtime_error("no line " + key);
}

inline void removeLine(Json& world, int table, const std::string& key) {
    auto& lines = tableOf(world, table);
    for (size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].value("code", "") == key || lines[i].value("name", "") == key) {
            lines.erase(i);
            return;
        }
    }
    throw std::runtime_error("no line " + key);
}

// Every line lint prints for the world, without the catalogue's folder ("a.cat, table 2...").
inline std::vector<std::string> lintLines(const Json& world) {
    const auto scenario = sim::loadScenario(world.dump());
    std::vector<std::string> lines;
    for (const auto& finding : lint::lintWorld(scenario->world)) {
        const std::string text = lint::describe(finding);
        const std::string folder = "C:\\Cat\\";
        lines.push_back(text.rfind(folder, 0) == 0 ? text.substr(folder.size()) : text);
    }
    return lines;
}

inline void setRule(Json& world, const std::string& code, const std::string& text) {
    lineOf(world, 2, code)["cols"]["2"] = text;
}

// A clean world changed in one place, and the lines lint must print for it (each the start of
// a line, in order, nothing more).
struct Case {
    const char* name;
    std::function<void(Json&)> change;
    std::vector<std::string> expected;
};

inline void PrintTo(const Case& c, std::ostream* os) {
    *os << c.name;
}

inline void expectFindings(const Case& c) {
    Json world = cleanWorld();
    c.change(world);
    const auto lines = lintLines(world);
    ASSERT_EQ(lines.size(), c.expected.size()) << ::testing::PrintToString(lines);
    for (size_t i = 0; i < lines.size(); ++i)
        EXPECT_EQ(lines[i].substr(0, c.expected[i].size()), c.expected[i]) << lines[i];
}

}  // namespace lint_test
