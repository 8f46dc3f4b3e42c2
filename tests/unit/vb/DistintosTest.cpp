#include <gtest/gtest.h>

#include "vb/Conversions.h"

using vb::Variant;

namespace {

TEST(Distintos, ComparesAsVbDoes) {
    struct {
        Variant a, b;
        bool differ;
    } const cases[] = {
        {int32_t{5}, 5.0, false},
        {int16_t{5}, int32_t{6}, true},
        {true, int32_t{-1}, false},
        {u"abc", u"abc", false},
        {u"abc", u"ABC", true},  // binary comparison
        {u"600", int32_t{600}, false},
        {u" 600.0 ", 600.0, false},
        {u"600", 601.0, true},
        {Variant(), int32_t{0}, false},
        {Variant(), 1.0, true},
        {Variant(), u"", false},
        {u"x", Variant(), true},
        {Variant(), Variant(), false},
        {Variant::null(), int32_t{1}, false},
        {u"a", Variant::null(), false},
        {u"True", true, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(vb::distintos(c.a, c.b), c.differ) << "case " << (&c - cases);
        EXPECT_EQ(vb::distintos(c.b, c.a), c.differ) << "swapped case " << (&c - cases);
    }
}

TEST(Distintos, TextThatIsNoNumberAgainstANumberIsATypeMismatch) {
    try {
        vb::distintos(Variant(u"abc"), Variant(int32_t{1}));
        FAIL() << "no error";
    } catch (const vb::RuntimeError& e) {
        EXPECT_EQ(e.number(), 13);
    }
}

}  // namespace
