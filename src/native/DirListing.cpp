#include "native/DirListing.h"

#include "vb/Errors.h"
#include "vb/Strings.h"

namespace native {

namespace {

using vb::String;

constexpr int kBadFileName = 52;

bool isSeparator(char16_t c) {
    return c == u'\\' || c == u'/';
}

[[noreturn]] void badName() {
    throw vb::RuntimeError(kBadFileName);
}

std::vector<platform::DirEntry> listFolder(const sim::VirtualFs& files, const String& folder,
                                           const String& filter, bool includeFolders) {
    std::vector<platform::DirEntry> out;
    const auto path = sim::parsePath(folder);
    if (!path) badName();
    const auto entries = files.list(folder);
    if (!entries) return out;
    const bool all = filter.empty() || filter == u"*" || filter == u"*.*";
    if (includeFolders && !path->isRoot() && all) {
        out.push_back({u".", true});
        out.push_back({u"..", true});
    }
    for (const auto& entry : *entries) {
        if (entry.isFolder && !includeFolders) continue;
        if (!all && !wildcardMatch(filter, entry.name)) continue;
        out.push_back({entry.name, entry.isFolder});
    }
    return out;
}

}  // namespace

bool wildcardMatch(const String& pattern, const String& name) {
    size_t p = 0, n = 0, starP = String::npos, starN = 0;
    while (n < name.size()) {
        if (p < pattern.size() &&
            (pattern[p] == u'?' || vb::upperUnit(pattern[p]) == vb::upperUnit(name[n]))) {
            ++p;
            ++n;
        } else if (p < pattern.size() && pattern[p] == u'*') {
            starP = p++;
            starN = n;
        } else if (starP != String::npos) {
            p = starP + 1;
            n = ++starN;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == u'*') ++p;
    return p == pattern.size();
}

std::vector<platform::DirEntry> dirEntries(const sim::VirtualFs& files, const String& pattern,
                                           bool includeFolders) {
    if (pattern.empty()) throw vb::RuntimeError(vb::err::kInvalidCall);
    if (isSeparator(pattern.back())) return listFolder(files, pattern, String(), includeFolders);
    size_t cut = pattern.find_last_of(u"\\/");
    const String last = cut == String::npos ? pattern : pattern.substr(cut + 1);
    if (last.find_first_of(u"*?") != String::npos) {
        const String folder = cut == String::npos ? String(u"C:\\") : pattern.substr(0, cut + 1);
        return listFolder(files, folder, last, includeFolders);
    }
    if (!sim::parsePath(pattern)) badName();
    const auto entry = files.entry(pattern);
    if (!entry || (entry->isFolder && !includeFolders)) return {};
    return {{entry->name, entry->isFolder}};
}

}  // namespace native
