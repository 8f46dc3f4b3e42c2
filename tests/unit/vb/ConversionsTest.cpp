#include <gtest/gtest.h>

#include <cstdint>
#include <optional>

#include "vb/Conversions.h"

using vb::Variant;

namespace {

// Runs each case with its decimal separator and puts "." back afterwards.
class WithSeparator : public ::testing::Test {
  protected:
    void use(char16_t separator) { vb::setDecimalSeparator(separator); }
    void TearDown() override { vb::setDecimalSeparator(u'.'); }
};

struct IntCase {
    Variant input;
    char16_t separator;
    std::optional<int32_t> expected;  // nothing: raises `error`
    int error;
};

int errorOf(auto&& call) {
    try {
        call();
    } catch (const vb::RuntimeError& e) {
        return e.number();
    }
    return 0;
}

using Conversions = WithSeparator;

TEST_F(Conversions, CLngRoundsHalvesToEvenAndChecksText) {
    const IntCase cases[] = {
        {2.5, u'.', 2, 0},
        {3.5, u'.', 4, 0},
        {-2.5, u'.', -2, 0},
        {-3.5, u'.', -4, 0},
        {0.5, u'.', 0, 0},
        {-0.5, u'.', 0, 0},
        {2.5000001, u'.', 3, 0},
        {u"  600.5 ", u'.', 600, 0},
        // Text is rounded on its own digits, not on its nearest Double (2.5, 1.5, 0.5 here).
        {u"2.50000000000000001", u'.', 3, 0},
        {u"1.49999999999999999", u'.', 1, 0},
        {u"0.05E1", u'.', 0, 0},
        {u"25E-1", u'.', 2, 0},
        {u"0.0000000000000000000000000000000000000000000000000000000051E56", u'.', 1, 0},
        {u"601.5", u'.', 602, 0},
        {u"600,5", u',', 600, 0},
        {u"&H10", u'.', 16, 0},
        {u"&HFFFF", u'.', 65535, 0},
        {u"&HF060", u'.', 61536, 0},
        {u"&HFFFFF060", u'.', -4000, 0},
        {u"&H10000", u'.', 65536, 0},
        {u"&H100000000", u'.', std::nullopt, 6},
        {u"&O17", u'.', 15, 0},
        {u"1E3", u'.', 1000, 0},
        {u"-1.5e1", u'.', -15, 0},
        {u"+7", u'.', 7, 0},
        {true, u'.', -1, 0},
        {false, u'.', 0, 0},
        {Variant(), u'.', 0, 0},
        {2147483647.0, u'.', 2147483647, 0},
        {-2147483648.0, u'.', INT32_MIN, 0},
        {2147483647.5, u'.', std::nullopt, 6},
        {u"2147483647.5", u'.', std::nullopt, 6},
        {u"-2147483648.5", u'.', INT32_MIN, 0},
        {u"-2147483648.50000000000000001", u'.', std::nullopt, 6},
        {-2147483648.6, u'.', std::nullopt, 6},
        {u"", u'.', std::nullopt, 13},
        {u" ", u'.', std::nullopt, 13},
        {u"abc", u'.', std::nullopt, 13},
        {u"600,5", u'.', std::nullopt, 13},
        {u"600.5", u',', std::nullopt, 13},
        {u"1,000", u'.', std::nullopt, 13},
        {u"12abc", u'.', std::nullopt, 13},
        {u".", u'.', std::nullopt, 13},
        {u"1E", u'.', std::nullopt, 13},
        {u"&H", u'.', std::nullopt, 13},
        {u"1E400", u'.', std::nullopt, 6},
        {u"1E400 x", u'.', std::nullopt, 13},
        {Variant::null(), u'.', std::nullopt, 94},
    };
    for (const auto& c : cases) {
        use(c.separator);
        const auto label = ::testing::Message() << "case " << (&c - cases);
        if (c.expected) {
            EXPECT_EQ(vb::CLng(c.input), *c.expected) << label;
        } else {
            EXPECT_EQ(errorOf([&] { vb::CLng(c.input); }), c.error) << label;
        }
    }
}

TEST_F(Conversions, CIntHasSixteenBitLimits) {
    const IntCase cases[] = {
        {32767.0, u'.', 32767, 0},
        {-32768.0, u'.', -32768, 0},
        {32767.4, u'.', 32767, 0},
        {-32768.5, u'.', -32768, 0},
        {u"32766.5", u'.', 32766, 0},
        {u"&HFFFF", u'.', -1, 0},
        {u"&H8000", u'.', -32768, 0},
        {u"&HF060", u'.', -4000, 0},
        {int32_t{40000}, u'.', std::nullopt, 6},
        {u"32767.5", u'.', std::nullopt, 6},
        {u"-32768.6", u'.', std::nullopt, 6},
        {u"&H10000", u'.', std::nullopt, 6},
        {u"&HFFFFFFFF", u'.', std::nullopt, 6},
        {u"1.5000000000000000001", u'.', 2, 0},
        {u"", u'.', std::nullopt, 13},
    };
    for (const auto& c : cases) {
        use(c.separator);
        const auto label = ::testing::Message() << "case " << (&c - cases);
        if (c.expected) {
            EXPECT_EQ(vb::CInt(c.input), *c.expected) << label;
        } else {
            EXPECT_EQ(errorOf([&] { vb::CInt(c.input); }), c.error) << label;
        }
    }
}

TEST_F(Conversions, CDblUsesTheThreadSeparator) {
    use(u',');
    EXPECT_EQ(vb::CDbl(Variant(u" 1,25 ")), 1.25);
    EXPECT_EQ(vb::CDbl(Variant(u"-,5")), -0.5);
    EXPECT_EQ(vb::CDbl(Variant(u"2,5E2")), 250.0);
    EXPECT_EQ(errorOf([] { vb::CDbl(Variant(u"1.25")); }), 13);
    use(u'.');
    EXPECT_EQ(vb::CDbl(Variant(u"1.25")), 1.25);
    EXPECT_EQ(vb::CDbl(Variant(u"5.")), 5.0);
    EXPECT_EQ(vb::CDbl(Variant(int16_t{-3})), -3.0);
    EXPECT_EQ(vb::CDbl(Variant(u"1E-400")), 0.0);
    // Too large, but not a number as a whole: a type mismatch, not an overflow.
    EXPECT_EQ(errorOf([] { vb::CDbl(Variant(u"1E400\tE-1")); }), 13);
}

TEST_F(Conversions, CDblOfHexTextIsALongUpTo32BitsAndUnsignedBeyond) {
    EXPECT_EQ(vb::CDbl(Variant(u"&HFFFF")), 65535.0);
    EXPECT_EQ(vb::CDbl(Variant(u"&HFFFFFFFF")), -1.0);
    EXPECT_EQ(vb::CDbl(Variant(u"&H100000000")), 4294967296.0);
    EXPECT_EQ(vb::CDbl(Variant(u"&HFFFFFFFFFFFFFFFF")), 18446744073709551615.0);
    EXPECT_EQ(vb::CDbl(Variant(u"&O777")), 511.0);
    EXPECT_EQ(errorOf([] { vb::CDbl(Variant(u"&H10000000000000000")); }), 6);
    EXPECT_EQ(errorOf([] { vb::CDbl(Variant(u"&H10000000000000000x")); }), 13);
}

TEST_F(Conversions, CStrWritesVbText) {
    struct {
        Variant input;
        char16_t separator;
        vb::String expected;
    } const cases[] = {
        {true, u'.', u"True"},
        {false, u'.', u"False"},
        {Variant(), u'.', u""},
        {int16_t{-5}, u'.', u"-5"},
        {int32_t{600}, u'.', u"600"},
        {-1.0, u'.', u"-1"},
        {0.5, u'.', u"0.5"},
        {0.5, u',', u"0,5"},
        {10000000.0, u'.', u"10000000"},
        {0.1 + 0.2, u'.', u"0.3"},
        {1.0 / 3, u'.', u"0.333333333333333"},
        {123456789012345.0, u'.', u"123456789012345"},
        {1e15, u'.', u"1E+15"},
        {1e-5, u'.', u"1E-05"},
        {-0.0, u'.', u"0"},
        {u"as is", u'.', u"as is"},
    };
    for (const auto& c : cases) {
        use(c.separator);
        EXPECT_EQ(vb::CStr(c.input), c.expected) << "case " << (&c - cases);
    }
    EXPECT_EQ(errorOf([] { vb::CStr(Variant::null()); }), 94);
}

// As VB converts text to Boolean: the words exactly (any case, no blanks around), VB's
// #TRUE#/#FALSE# literals, then any number (blanks around a number are allowed); anything else,
// the empty text included, is a type mismatch.
TEST_F(Conversions, CBoolReadsWordsAndNumbers) {
    struct {
        Variant input;
        char16_t separator;
        std::optional<bool> expected;  // nothing: type mismatch (13)
    } const cases[] = {
        {u"True", u'.', true},
        {u"tRUE", u'.', true},
        {u"FALSE", u'.', false},
        {u"#TRUE#", u'.', true},
        {u"#FALSE#", u'.', false},
        {u"#true#", u'.', std::nullopt},
        {u" true ", u'.', std::nullopt},
        {u"0", u'.', false},
        {u" 0 ", u'.', false},
        {u"1", u'.', true},
        {u"-1", u'.', true},
        {u"1.5", u'.', true},
        {u"0.0", u'.', false},
        {u"1,5", u',', true},
        {u"1.5", u',', std::nullopt},
        {u"", u'.', std::nullopt},
        {u"yes", u'.', std::nullopt},
        {u"1 0", u'.', std::nullopt},
        {0.1, u'.', true},
        {int16_t{0}, u'.', false},
        {Variant(), u'.', false},
    };
    for (const auto& c : cases) {
        use(c.separator);
        const auto n = &c - cases;
        if (c.expected) {
            EXPECT_EQ(vb::CBool(c.input), *c.expected) << "case " << n;
        } else {
            EXPECT_EQ(errorOf([&] { vb::CBool(c.input); }), 13) << "case " << n;
        }
    }
    EXPECT_EQ(errorOf([] { vb::CBool(Variant::null()); }), 94);
}

TEST(Errors, CarryNumberAndStandardDescription) {
    const std::pair<int, vb::String> cases[] = {
        {6, u"Overflow"},
        {13, u"Type mismatch"},
        {31999, u"Application-defined or object-defined error"},
    };
    for (const auto& [number, text] : cases) {
        const vb::RuntimeError e(number);
        EXPECT_EQ(e.number(), number);
        EXPECT_EQ(e.description(), text);
    }
    const vb::RuntimeError own(1001, u"Texto propio");
    EXPECT_EQ(own.description(), u"Texto propio");
    EXPECT_STREQ(own.what(), "Run-time error '1001': Texto propio");
}

}  // namespace
