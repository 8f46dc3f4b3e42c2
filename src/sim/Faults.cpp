#include "sim/Faults.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "vb/Strings.h"

namespace sim {

namespace {

constexpr FaultKind kKinds[] = {FaultKind::Raise, FaultKind::EmptyText, FaultKind::MinusOne,
                                FaultKind::HugeText};

FaultKind kindNamed(const std::string& name) {
    for (const FaultKind kind : kKinds) {
        if (name == faultKindName(kind)) return kind;
    }
    throw std::invalid_argument("unknown fault kind '" + name +
                                "' (raise, emptyText, minusOne or hugeText)");
}

CountedFault countedFault(const std::string& text) {
    const size_t colon = text.find(':');
    int64_t call = 0;
    const char* end = text.data() + (colon == std::string::npos ? text.size() : colon);
    const auto parsed = std::from_chars(text.data(), end, call);
    if (colon == std::string::npos || parsed.ec != std::errc() || parsed.ptr != end || call < 1)
        throw std::invalid_argument("--fault takes K:KIND with K a host call from 1, not '" + text +
                                    "'");
    return {call, kindNamed(text.substr(colon + 1))};
}

}  // namespace

const char* const kFaultOptionsUsage =
    "  --fault K:KIND    the K-th host call of the scenario fails: raise, emptyText, minusOne or "
    "hugeText\n"
    "  --refuse PROGID   the host object PROGID cannot be created (error 429)\n"
    "  --missing MEMBER  the host objects do not have MEMBER (error 438)\n";

bool FaultPlan::refuses(const vb::String& progId) const {
    return std::any_of(refusedProgIds.begin(), refusedProgIds.end(),
                       [&](const vb::String& p) { return vb::equalText(p, progId); });
}

bool FaultPlan::lacks(const char* member) const {
    return std::find(missingMembers.begin(), missingMembers.end(), member) != missingMembers.end();
}

std::optional<FaultKind> FaultPlan::at(int64_t call) const {
    for (const CountedFault& f : counted) {
        if (f.call == call) return f.kind;
    }
    return std::nullopt;
}

const char* faultKindName(FaultKind kind) {
    switch (kind) {
        case FaultKind::Raise:
            return "raise";
        case FaultKind::EmptyText:
            return "emptyText";
        case FaultKind::MinusOne:
            return "minusOne";
        case FaultKind::HugeText:
            break;
    }
    return "hugeText";
}

vb::String injectedDescription(int64_t call, const char* member) {
    return u"Host failure injected at call " + vb::fromUtf8(std::to_string(call)) + u" (" +
           vb::fromUtf8(member) + u")";
}

vb::Variant faultyAnswer(FaultKind kind) {
    switch (kind) {
        case FaultKind::EmptyText:
            return vb::Variant(vb::String());
        case FaultKind::MinusOne:
            return vb::Variant(int32_t{-1});
        case FaultKind::Raise:
        case FaultKind::HugeText:
            break;
    }
    return vb::Variant(vb::String(kHugeTextLength, u'x'));
}

void takeFaultOptions(std::vector<std::string>& args, FaultPlan& plan) {
    std::vector<std::string> rest;
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        if (a != "--fault" && a != "--refuse" && a != "--missing") {
            rest.push_back(a);
            continue;
        }
        if (i + 1 == args.size()) throw std::invalid_argument(a + " needs a value");
        const std::string& value = args[++i];
        if (a == "--fault") plan.counted.push_back(countedFault(value));
        if (a == "--refuse") plan.refusedProgIds.push_back(vb::fromUtf8(value));
        if (a == "--missing") plan.missingMembers.push_back(value);
    }
    args = std::move(rest);
}

}  // namespace sim
