#include <gtest/gtest.h>

#include "vb/Conversions.h"
#include "vb/Strings.h"

using vb::Variant;

namespace {

TEST(Val, ReadsTheLeadingNumber) {
    const std::pair<vb::String, double> cases[] = {
        {u"12abc", 12},  {u" 1 2", 12},       {u"-3.7x", -3.7},    {u"abc", 0},
        {u"", 0},        {u"&H1F", 31},       {u"&hff", 255},      {u"&O17", 15},
        {u"&HFFFF", -1}, {u"&HFFFF&", 65535}, {u"&H10000", 65536}, {u".5", 0.5},
        {u"-.5e1", -5},  {u"1e", 1},          {u"1E+2x", 100},     {u"2D2", 200},
        {u"1.2.3", 1.2}, {u"+5", 5},          {u"--5", 0},         {u"-", 0},
        {u"600,5", 600}, {u"\t7\n", 7},       {u"1 000", 1000},    {u"0.0001", 0.0001},
    };
    vb::setDecimalSeparator(u',');  // Val always reads "." whatever the separator
    for (const auto& [text, expected] : cases)
        EXPECT_DOUBLE_EQ(vb::Val(text), expected) << ::testing::PrintToString(vb::toUtf8(text));
    vb::setDecimalSeparator(u'.');
}

TEST(IsNumeric, FollowsTheConversionRules) {
    const std::pair<Variant, bool> cases[] = {
        {Variant(u""), false},    {Variant(u" 5 "), true},     {Variant(u"abc"), false},
        {Variant(u"1E3"), true},  {Variant(u"&H1F"), true},    {Variant(u"600,5"), false},
        {Variant(u"-0.5"), true}, {Variant(u"1E400"), false},  {Variant(u"5 5"), false},
        {Variant(), true},        {Variant::null(), false},    {Variant(true), true},
        {Variant(2.5), true},     {Variant(int16_t{1}), true},
    };
    for (const auto& [value, expected] : cases)
        EXPECT_EQ(vb::IsNumeric(value), expected) << "case " << (&value - &cases[0].first);
}

TEST(IsNumeric, UsesTheThreadSeparator) {
    vb::setDecimalSeparator(u',');
    EXPECT_TRUE(vb::IsNumeric(Variant(u"600,5")));
    EXPECT_FALSE(vb::IsNumeric(Variant(u"600.5")));
    vb::setDecimalSeparator(u'.');
}

}  // namespace
