// A rule line read as the rules read it, the one reading lint and the matrix share: the edge
// cases of the MO_ and EX_ texts.
#include <gtest/gtest.h>

#include <map>

#include "rules/LecturaReglas.h"
#include "vb/Strings.h"

namespace {

using rules::String;

struct Rule {
    const char16_t* text;
    std::vector<String> pieces;
    bool all;
};

TEST(LecturaReglas, SkipsThreeCharactersAndSplitsAtEveryBlank) {
    const Rule rules[] = {
        {u"MO: M01 M02", {u"", u"M01", u"M02"}, false},
        {u"MO:M01 M02", {u"M01", u"M02"}, false},
        {u"MO: M01  M02", {u"", u"M01", u"", u"M02"}, false},
        {u"xyz ALL", {u"", u"ALL"}, true},
        {u"MO: ALL ", {u"", u"ALL", u""}, false},
        {u"MO:", {}, false},
        {u"M", {}, false},
    };
    for (const auto& r : rules) {
        const auto read = rules::leeRegla(r.text);
        EXPECT_EQ(read.piezas, r.pieces) << vb::toUtf8(r.text);
        EXPECT_EQ(read.todos, r.all) << vb::toUtf8(r.text);
    }
}

TEST(LecturaReglas, AnEmptyExceptionTextKeepsTheList) {
    EXPECT_FALSE(rules::leeExcepcion(u"").has_value());
    EXPECT_TRUE(rules::leeExcepcion(u"EX:")->empty());
    EXPECT_EQ(*rules::leeExcepcion(u"EX: B60"), (std::vector<String>{u"", u"B60"}));
}

TEST(LecturaReglas, PermitsAsTheMatrixIsFilled) {
    const std::map<String, String> table8 = {{u"M01", u"TIBER"}, {u"M02", u"MONZA"}};
    const rules::NombreDeCodigo nombreDe = [&](const String& code) -> std::optional<String> {
        const auto it = table8.find(code);
        if (it == table8.end()) return std::nullopt;
        return it->second;
    };
    EXPECT_TRUE(rules::reglaPermite(String(u"MO: M07 M02"), u"MONZA", true, nombreDe));
    EXPECT_FALSE(rules::reglaPermite(String(u"MO: M01"), u"MONZA", true, nombreDe));
    EXPECT_FALSE(rules::reglaPermite(String(u"MO: M01"), u"tiber", true, nombreDe));
    EXPECT_FALSE(rules::reglaPermite(std::nullopt, u"TIBER", true, nombreDe));
    // " ALL" permits every model only where the rule is read with it (not by the Wizard).
    EXPECT_TRUE(rules::reglaPermite(String(u"MO: ALL"), u"NEVADA", true, nombreDe));
    EXPECT_FALSE(rules::reglaPermite(String(u"MO: ALL"), u"NEVADA", false, nombreDe));
}

}  // namespace
