// Readings of object scripts: named limits, limit checks and parameter ranges.
#include <gtest/gtest.h>

#include <array>
#include <optional>

#include "dialog/ScriptParametros.h"
#include "vb/Errors.h"
#include "vb/Strings.h"

namespace {

using dialog::limitesScript;
using dialog::rangoParametro;
using dialog::valorScript;
using vb::String;

struct ValorCase {
    const char16_t* script;
    const char16_t* name;
    double defecto;
    std::optional<double> expected;  // nullopt: the reading fails
};

TEST(ValorScript, ReadsTheEntryAfterTheFirstOccurrence) {
    const ValorCase cases[] = {
        {u"LMIN=300,LMAX=1200)", u"LMAX", 10000000, 1200},
        {u"LMIN=300,LMAX=1200)", u"LMIN", -1, 300},
        {u"LMIN=300,LMAX=1200)", u"HMIN", -1, -1},
        {u"lmin=300,LMAX=1200)", u"LMIN", -1, 300},    // names ignore case
        {u"XLMIN=5,LMIN=300)", u"LMIN", -1, 5},        // first occurrence, inside a word
        {u"A(LMAX=900)", u"LMAX", 10000000, 900},      // ends at ")"
        {u"LMIN=300", u"LMIN", -1, std::nullopt},      // no ")" after the name
        {u"LMIN=abc)", u"LMIN", -1, std::nullopt},     // not a number
        {u"PMAX=)", u"PMAX", 10000000, std::nullopt},  // empty number
        {u"HMAX=2.5)", u"HMAX", 10000000, 2.5},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(vb::toUtf8(String(c.script)) + " / " + vb::toUtf8(String(c.name)));
        if (c.expected) {
            EXPECT_EQ(valorScript(c.script, c.name, c.defecto), *c.expected);
        } else {
            EXPECT_THROW(valorScript(c.script, c.name, c.defecto), vb::RuntimeError);
        }
    }
}

struct LimitesCase {
    const char16_t* script;
    bool l, h, p;
    const char16_t *ancho, *alto, *fondo;
    bool expected;
    int avisos;
};

TEST(LimitesScript, ChecksEachPairAndTreatsUnreadableScriptsAsFitting) {
    const LimitesCase cases[] = {
        {u"LMAX=900)", true, false, false, u"950", u"0", u"0", false, 0},
        {u"LMAX=900)", true, false, false, u"900", u"0", u"0", true, 0},
        {u"LMIN=300,LMAX=1200)", true, false, false, u"299", u"0", u"0", false, 0},
        {u"LMIN=300,LMAX=1200)", false, false, false, u"5", u"0", u"0", true, 0},
        {u"LMAX=900,HMAX=700)", false, true, false, u"5000", u"701", u"0", false, 0},
        {u"LMAX=900,HMAX=700)", true, true, false, u"950", u"abc", u"0", false, 0},  // stops
        {u"PMIN=100,PMAX=200)", false, false, true, u"0", u"0", u"150", true, 0},
        {u"", true, true, true, u"x", u"y", u"z", true, 0},  // no limits: values not read
        {u"LMIN=300", true, false, false, u"100", u"0", u"0", true, 1},
        {u"LMAX=900)", true, false, false, u"abc", u"0", u"0", true, 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(vb::toUtf8(String(c.script)) + " " + vb::toUtf8(String(c.ancho)));
        int avisos = 0;
        bool ok = limitesScript(c.script, c.l, c.h, c.p, c.ancho, c.alto, c.fondo,
                                [&](const String&) { ++avisos; });
        EXPECT_EQ(ok, c.expected);
        EXPECT_EQ(avisos, c.avisos);
    }
}

struct RangoCase {
    const char16_t* spec;
    const char16_t* script;
    const char16_t* expected;
};

TEST(RangoParametro, ReadsMinAndMeasureReferences) {
    const std::array<String, 3> cajas{u"600", u"720", u"560"};
    const RangoCase cases[] = {
        {u"ENC1", u"/// P ENC1(MIN=50,MAX=@L)", u"550"},
        {u"ENC1(MIN=50,MAX=@L)", u"/// P ENC1(MIN=50,MAX=@L)", u"550"},
        {u"ENC9", u"/// P ENC1(MIN=50,MAX=@L)", u"0"},  // not in the script
        {u"ENC1", u"/// P ENC1 other", u"10000000"},    // no "(" follows
        {u"ENC1", u"ENC1(X=@H)", u"720"},               // single item: key not read
        {u"ENC1", u"ENC1(MIN=@P)", u"560"},
        {u"ENC1", u"ENC1(MIN=50,MAX=700)", u"9999950"},    // numeric MAX ignored
        {u"ENC1", u"ENC1(MIN=@L,MAX=@P)", u"560"},         // MIN with a reference ignored
        {u"ENC1", u"enc1(min=10,max=@h)", u"710"},         // case ignored
        {u"ENC1", u"ENC1(MIN=10,MAX=@H,MIN=20)", u"700"},  // later items win
        {u"ENC1", u"ENC1(MIN,MAX=@L)", u"600"},            // item without "=" skipped
        {u"ENC1", u"ENC1(MIN=abc,MAX=@L)", u"600"},        // not a number: skipped
        {u"ENC1", u"ENC1(MIN=5", u"10000000"},             // no ")"
        {u"ENC1", u"ENC1()", u"10000000"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(vb::toUtf8(String(c.script)));
        EXPECT_EQ(vb::toUtf8(rangoParametro(c.spec, c.script, cajas)), vb::toUtf8(c.expected));
    }
}

TEST(RangoParametro, AMeasureBoxThatIsNotANumberLeavesTheUpperEnd) {
    EXPECT_EQ(rangoParametro(u"E", u"E(MIN=0,MAX=@L)", {u"abc", u"", u""}), u"10000000");
    EXPECT_EQ(rangoParametro(u"E", u"E(MAX=@L)", {u"", u"", u""}), u"10000000");
}

TEST(CodigoParametro, CutsBeforeTheParenthesis) {
    EXPECT_EQ(dialog::codigoParametro(u"ENC1(MIN=50,MAX=@L)"), u"ENC1");
    EXPECT_EQ(dialog::codigoParametro(u"ENC1"), u"ENC1");
    EXPECT_EQ(dialog::codigoParametro(u"(X)"), u"");
}

}  // namespace
