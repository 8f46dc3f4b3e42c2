// Lines the rules never read: a code they look up differently, a second line of one code.
#include <algorithm>
#include <unordered_map>

#include "lint/Reading.h"
#include "lint/TextKeys.h"
#include "vb/Strings.h"

namespace lint {

namespace {

bool isRead(const String& code) {
    const auto& read = codesRead();
    return std::find(read.begin(), read.end(), code) != read.end();
}

// The code the rules read that this one was probably meant to be (letter case or blanks).
const String* nearMiss(const String& code) {
    for (const auto& read : codesRead())
        if (vb::equalText(vb::Trim(code), read)) return &read;
    return nullptr;
}

bool startsWith(const String& code, const char16_t* prefix) {
    return vb::equalText(vb::Left(code, 3), prefix);
}

std::vector<String> allCodes(bool permission) {
    std::vector<String> codes;
    for (const auto& kind : kinds()) codes.push_back(permission ? kind.permission : kind.exception);
    return codes;
}

// MO_ codes write width and height as "AAl", EX_ codes as "AA": the other spelling is an
// easy slip.
String otherSpelling(const String& code) {
    for (const auto& kind : kinds()) {
        const String permission = kind.permission, exception = kind.exception;
        if (vb::equalText(code, u"MO_" + exception.substr(3)))
            return u"the permission code for " + String(kind.name) + u" is " + permission +
                   u" (exception lines write " + exception + u")";
        if (vb::equalText(code, u"EX_" + permission.substr(3)))
            return u"the exception code for " + String(kind.name) + u" is " + exception +
                   u" (permission lines write " + permission + u")";
    }
    return String();
}

void checkUnread(const String& code, Report& r) {
    if (code.empty() || isRead(code)) return;
    if (const String* meant = nearMiss(code)) {
        r.finding(2, code,
                  u"the rules look this line up as " + *meant +
                      u", exactly as written (letter case and blanks count), so they never "
                      u"read it");
        return;
    }
    const bool permission = startsWith(code, u"MO_");
    if (!permission && !startsWith(code, u"EX_")) return;
    String why = otherSpelling(code);
    if (why.empty())
        why = String(permission ? u"the permission codes are " : u"the exception codes are ") +
              joined(allCodes(permission));
    r.finding(2, code, u"the rules never read a line of this code: " + why);
}

// Lookups by code (or by name) find the first line; the others are never read.
void checkRepeated(int table, const sim::Table* t, bool byName, Report& r) {
    std::unordered_map<String, size_t> first;
    const auto lines = linesOf(t);
    for (size_t i = 0; i < lines.size(); ++i) {
        const String& key = byName ? lines[i]->name : lines[i]->code;
        if (key.empty()) continue;
        const auto [it, added] = first.try_emplace(key, i + 1);
        if (added) continue;
        r.finding(table, key,
                  u"lines " + number(static_cast<long>(it->second)) + u" and " +
                      number(static_cast<long>(i + 1)) + u" of the table have this " +
                      (byName ? u"name" : u"code") + u"; the rules only ever find line " +
                      number(static_cast<long>(it->second)));
    }
}

}  // namespace

void checkLineCodes(const Subject& s, Report& r) {
    for (const auto* line : linesOf(s.table(2))) checkUnread(line->code, r);
    checkRepeated(2, s.table(2), false, r);
    checkRepeated(3, s.table(3), true, r);
    checkRepeated(8, s.table(8), false, r);
}

}  // namespace lint
