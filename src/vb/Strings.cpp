// VB's string functions on UTF-16 units.
#include "vb/Strings.h"

#include <algorithm>

#include "vb/Errors.h"

namespace vb {

namespace {

bool sameUnit(char16_t a, char16_t b, Compare mode) {
    return mode == Compare::Binary ? a == b : lowerUnit(a) == lowerUnit(b);
}

bool matchesAt(const String& text, size_t at, const String& find, Compare mode) {
    for (size_t k = 0; k < find.size(); ++k)
        if (!sameUnit(text[at + k], find[k], mode)) return false;
    return true;
}

// Up to this length a plain search is cheapest; beyond it the search must not cost the text's
// length times the find's (a long parameter definition looked up in a long script).
constexpr size_t kPlainSearchLength = 16;

size_t plainSearch(const String& text, size_t from, const String& find, Compare mode) {
    for (size_t at = from; at + find.size() <= text.size(); ++at)
        if (matchesAt(text, at, find, mode)) return at;
    return String::npos;
}

// Knuth-Morris-Pratt: linear in the lengths of both texts.
size_t linearSearch(const String& text, size_t from, const String& find, Compare mode) {
    std::vector<size_t> border(find.size(), 0);
    for (size_t i = 1, k = 0; i < find.size(); ++i) {
        while (k > 0 && !sameUnit(find[i], find[k], mode)) k = border[k - 1];
        if (sameUnit(find[i], find[k], mode)) ++k;
        border[i] = k;
    }
    for (size_t i = from, k = 0; i < text.size(); ++i) {
        while (k > 0 && !sameUnit(text[i], find[k], mode)) k = border[k - 1];
        if (sameUnit(text[i], find[k], mode)) ++k;
        if (k == find.size()) return i + 1 - find.size();
    }
    return String::npos;
}

void requireNonNegative(int length) {
    if (length < 0) throw RuntimeError(err::kInvalidCall);
}

}  // namespace

int InStr(const String& text, const String& find, Compare mode, int start) {
    if (start < 1) throw RuntimeError(err::kInvalidCall);
    const auto from = static_cast<size_t>(start - 1);
    if (text.empty() || from > text.size()) return 0;  // VB checks these before an empty find
    if (find.empty()) return start;
    if (find.size() > text.size()) return 0;
    const size_t at = find.size() <= kPlainSearchLength ? plainSearch(text, from, find, mode)
                                                        : linearSearch(text, from, find, mode);
    return at == String::npos ? 0 : static_cast<int>(at + 1);
}

std::vector<String> Split(const String& text, const String& separator) {
    // VB gives an empty array for empty text, and the whole text for an empty separator.
    if (text.empty()) return {};
    if (separator.empty()) return {text};
    std::vector<String> pieces;
    size_t begin = 0;
    for (size_t at = text.find(separator); at != String::npos; at = text.find(separator, begin)) {
        pieces.push_back(text.substr(begin, at - begin));
        begin = at + separator.size();
    }
    pieces.push_back(text.substr(begin));
    return pieces;
}

String Mid(const String& text, int start) {
    if (start < 1) throw RuntimeError(err::kInvalidCall);
    const auto from = static_cast<size_t>(start - 1);
    return from >= text.size() ? String() : text.substr(from);
}

String Mid(const String& text, int start, int length) {
    if (start < 1) throw RuntimeError(err::kInvalidCall);
    requireNonNegative(length);
    const auto from = static_cast<size_t>(start - 1);
    return from >= text.size() ? String() : text.substr(from, static_cast<size_t>(length));
}

String Left(const String& text, int length) {
    requireNonNegative(length);
    return text.substr(0, static_cast<size_t>(length));
}

String Right(const String& text, int length) {
    requireNonNegative(length);
    const auto n = std::min(text.size(), static_cast<size_t>(length));
    return text.substr(text.size() - n);
}

int Len(const String& text) {
    return static_cast<int>(text.size());
}

String LTrim(const String& text) {
    const auto first = text.find_first_not_of(u' ');
    return first == String::npos ? String() : text.substr(first);
}

String RTrim(const String& text) {
    const auto last = text.find_last_not_of(u' ');
    return last == String::npos ? String() : text.substr(0, last + 1);
}

String Trim(const String& text) {
    return LTrim(RTrim(text));
}

String Replace(const String& text, const String& find, const String& with) {
    if (find.empty()) return text;
    String out;
    size_t begin = 0;
    for (size_t at = text.find(find); at != String::npos; at = text.find(find, begin)) {
        out.append(text, begin, at - begin);
        out.append(with);
        begin = at + find.size();
    }
    out.append(text, begin, String::npos);
    return out;
}

}  // namespace vb
