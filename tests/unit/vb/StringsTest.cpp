#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "vb/Errors.h"
#include "vb/Strings.h"

using vb::Compare;
using vb::String;

namespace {

TEST(InStr, FindsByModeAndStart) {
    struct {
        String text, find;
        Compare mode;
        int start, expected;
    } const cases[] = {
        {u"abcabc", u"c", Compare::Binary, 1, 3},  {u"abcabc", u"c", Compare::Binary, 4, 6},
        {u"abcabc", u"C", Compare::Binary, 1, 0},  {u"abcabc", u"C", Compare::Text, 1, 3},
        {u"Ángulo", u"áNG", Compare::Text, 1, 1},  {u"AÑO", u"año", Compare::Text, 1, 1},
        {u"pingüino", u"ÜI", Compare::Text, 1, 5}, {u"Ángulo", u"áNG", Compare::Binary, 1, 0},
        {u"abc", u"", Compare::Binary, 2, 2},      {u"abc", u"x", Compare::Binary, 9, 0},
        {u"", u"a", Compare::Text, 1, 0},          {u"", u"", Compare::Text, 1, 0},
        {u"ab", u"abc", Compare::Text, 1, 0},      {u"a\r\n--", u"\r\n--", Compare::Text, 1, 2},
    };
    for (const auto& c : cases)
        EXPECT_EQ(vb::InStr(c.text, c.find, c.mode, c.start), c.expected)
            << "case " << (&c - cases);
    EXPECT_THROW(vb::InStr(u"abc", u"a", Compare::Binary, 0), vb::RuntimeError);
}

// Long finds go through a linear search; it must find what a plain search finds, from any
// start, in both modes (texts of "a", "b" and "B" hold many partial matches).
TEST(InStr, LongFindsAgreeWithAPlainSearch) {
    std::mt19937 random(13);
    const auto textOf = [&](size_t length) {
        String t;
        for (size_t i = 0; i < length; ++i)
            t += (random() % 2) ? u'a' : (random() % 2 ? u'B' : u'b');
        return t;
    };
    for (int round = 0; round < 2000; ++round) {
        const String text = textOf(random() % 80);
        String find = textOf(17 + random() % 8);
        if (round % 2 == 0 && text.size() > 24) {  // a piece of the text, some letters recased
            find = text.substr(random() % (text.size() - 24), 17 + random() % 8);
            for (auto& c : find)
                if (random() % 4 == 0)
                    c = vb::upperUnit(c) == c ? vb::lowerUnit(c) : vb::upperUnit(c);
        }
        const int start = 1 + static_cast<int>(random() % 40);
        for (Compare mode : {Compare::Binary, Compare::Text}) {
            const auto same = [&](char16_t a, char16_t b) {
                return mode == Compare::Binary ? a == b : vb::lowerUnit(a) == vb::lowerUnit(b);
            };
            int expected = 0;
            if (!text.empty() && static_cast<size_t>(start - 1) <= text.size()) {
                const auto from = text.begin() + (start - 1);
                const auto at = std::search(from, text.end(), find.begin(), find.end(), same);
                if (at != text.end()) expected = static_cast<int>(at - text.begin()) + 1;
            }
            ASSERT_EQ(vb::InStr(text, find, mode, start), expected)
                << vb::toUtf8(text) << " / " << vb::toUtf8(find) << " from " << start;
        }
    }
}

TEST(Split, KeepsEmptyPieces) {
    using Pieces = std::vector<String>;
    EXPECT_EQ(vb::Split(u"3-4-5", u"-"), (Pieces{u"3", u"4", u"5"}));
    EXPECT_EQ(vb::Split(u"-a--b-", u"-"), (Pieces{u"", u"a", u"", u"b", u""}));
    EXPECT_EQ(vb::Split(u"a\r\nb", u"\r\n"), (Pieces{u"a", u"b"}));
    EXPECT_EQ(vb::Split(u"abc", u","), (Pieces{u"abc"}));
    EXPECT_EQ(vb::Split(u"abc", u""), (Pieces{u"abc"}));
    EXPECT_EQ(vb::Split(u"", u","), Pieces{});
}

int errorOf(auto&& call) {
    try {
        call();
    } catch (const vb::RuntimeError& e) {
        return e.number();
    }
    return 0;
}

TEST(Cuts, CountUnitsAndRejectBadArguments) {
    EXPECT_EQ(vb::Mid(u"Ángulo: 5", 9), u"5");
    EXPECT_EQ(vb::Mid(u"abc", 2, 1), u"b");
    EXPECT_EQ(vb::Mid(u"abc", 2, 99), u"bc");
    EXPECT_EQ(vb::Mid(u"abc", 4), u"");
    EXPECT_EQ(vb::Mid(u"abc", 9, 2), u"");
    EXPECT_EQ(vb::Mid(u"abc", 1, 0), u"");
    EXPECT_EQ(errorOf([] { vb::Mid(u"abc", 0); }), 5);
    EXPECT_EQ(errorOf([] { vb::Mid(u"abc", 0, 1); }), 5);
    EXPECT_EQ(errorOf([] { vb::Mid(u"abc", 1, -1); }), 5);
    EXPECT_EQ(vb::Left(u"abc", 2), u"ab");
    EXPECT_EQ(vb::Left(u"abc", 9), u"abc");
    EXPECT_EQ(vb::Right(u"abc", 2), u"bc");
    EXPECT_EQ(vb::Right(u"abc", 9), u"abc");
    EXPECT_EQ(errorOf([] { vb::Left(u"abc", -1); }), 5);
    EXPECT_EQ(errorOf([] { vb::Right(u"abc", -1); }), 5);
    EXPECT_EQ(vb::Len(u"Ángulo: "), 8);
}

TEST(Case, FoldsAsciiAndLatin1) {
    EXPECT_EQ(vb::UCase(u"áéíóúñüçÿ abc ß×"), u"ÁÉÍÓÚÑÜÇŸ ABC ß×");
    EXPECT_EQ(vb::LCase(u"ÁÉÍÓÚÑÜÇŸ ABC Þ÷"), u"áéíóúñüçÿ abc þ÷");
    EXPECT_TRUE(vb::equalText(u"Puerta Ñ", u"PUERTA ñ"));
    EXPECT_FALSE(vb::equalText(u"a", u"ab"));
    EXPECT_FALSE(vb::equalText(u"×", u"÷"));
}

TEST(Trim, RemovesBlanksOnly) {
    EXPECT_EQ(vb::Trim(u"  a b  "), u"a b");
    EXPECT_EQ(vb::Trim(u"\ta\t"), u"\ta\t");
}

TEST(Utf8, RoundTripsAndReplacesBadInput) {
    const String text = u"Ángulo ñ € \U0001F600";
    EXPECT_EQ(vb::fromUtf8(vb::toUtf8(text)), text);
    EXPECT_EQ(vb::fromUtf8("a\xff"
                           "b"),
              u"a\uFFFDb");
    EXPECT_EQ(vb::fromUtf8("\xc3"), u"\uFFFD");            // cut sequence
    EXPECT_EQ(vb::fromUtf8("\xc0\xaf"), u"\uFFFD\uFFFD");  // overlong
    EXPECT_EQ(vb::fromUtf8("\xed\xa0\x80"), u"\uFFFD");    // encoded surrogate
    EXPECT_EQ(vb::toUtf8(String(1, char16_t(0xD800)) + u"x"), "\xef\xbf\xbdx");
}

}  // namespace
