// Picture names from a recess's script: a name that nombreSeguro accepts, appended to the
// temporary folder, must name a file directly inside that folder and no Windows device. The
// input is the name (UTF-8).
//
// The folder + name path is resolved here as Windows' file functions would take it, on the
// side of caution: the text ends at a NUL; "/" and the characters that a narrow code page's
// best fit turns into ASCII (fullwidth forms, the yen and won signs that stand for "\" in
// Japanese and Korean code pages, division and set-minus slashes) count as what they become;
// ":" is a drive or an alternate stream; trailing dots and blanks of a component go; "." stays,
// ".." and longer runs of dots go up. A device is CON, PRN, AUX, NUL, CONIN$, CONOUT$, COM or
// LPT with a digit or superscript digit, whatever follows a dot and whatever blanks surround it.
#include <algorithm>
#include <optional>
#include <vector>

#include "FuzzCheck.h"
#include "dialog/NombreSeguro.h"

namespace {

using vb::String;

const std::vector<String> kFolder{u"C:", u"Quorbel", u"Textures", u"Temp"};

char16_t asWindowsSees(char16_t c) {
    if (c >= 0xFF01 && c <= 0xFF5E) c = static_cast<char16_t>(c - 0xFF01 + u'!');
    switch (c) {
        case u'/':
        case 0x00A5:  // yen sign
        case 0x20A9:  // won sign
        case 0x2215:  // division slash
        case 0x2216:  // set minus
        case 0x29F5:  // reverse solidus operator
        case 0xFE68:  // small reverse solidus
            return u'\\';
        default:
            return c;
    }
}

String strippedEnd(String component) {
    while (!component.empty() && (component.back() == u'.' || component.back() == u' '))
        component.pop_back();
    return component;
}

bool onlyDots(const String& component) {
    return !component.empty() && component.find_first_not_of(u'.') == String::npos;
}

// The components of the resolved path; nothing when it holds a ":" (drive or stream).
std::optional<std::vector<String>> resolved(const String& name) {
    String seen;
    for (char16_t c : name) {
        if (c == 0) break;
        seen.push_back(asWindowsSees(c));
    }
    if (seen.find(u':') != String::npos) return std::nullopt;
    std::vector<String> path = kFolder;
    for (const String& raw : vb::Split(seen, u"\\")) {
        String component = raw;
        while (!component.empty() && component.back() == u' ') component.pop_back();
        if (component == u".") continue;
        if (onlyDots(component)) {
            if (path.size() > 1) path.pop_back();
            continue;
        }
        component = strippedEnd(component);
        if (!component.empty()) path.push_back(component);
    }
    return path;
}

String upperAscii(String text) {
    for (auto& c : text)
        if (c >= u'a' && c <= u'z') c = static_cast<char16_t>(c - u'a' + u'A');
    return text;
}

bool isDevice(const String& component) {
    String base = component.substr(0, component.find(u'.'));
    base =
        upperAscii(strippedEnd(base.substr(std::min(base.find_first_not_of(u' '), base.size()))));
    for (const String device : {u"CON", u"PRN", u"AUX", u"NUL", u"CONIN$", u"CONOUT$"})
        if (base == device) return true;
    if (base.size() != 4 || (base.compare(0, 3, u"COM") != 0 && base.compare(0, 3, u"LPT") != 0))
        return false;
    const char16_t n = base[3];
    return (n >= u'0' && n <= u'9') || n == 0x00B9 || n == 0x00B2 || n == 0x00B3;
}

bool staysInFolder(const String& name) {
    const auto path = resolved(name);
    if (!path || path->size() != kFolder.size() + 1) return false;
    for (size_t i = 0; i < kFolder.size(); ++i)
        if (upperAscii((*path)[i]) != upperAscii(kFolder[i])) return false;
    return !isDevice(path->back());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const String name = vb::fromUtf8(fuzzcheck::bytes(data, size));
    if (dialog::nombreSeguro(name)) FUZZ_CHECK(staysInFolder(name));
    return 0;
}
