#include "native/IniProfile.h"

#include "vb/Strings.h"

namespace native {

namespace {

using vb::String;

bool isBlank(char16_t c) {
    return c == u' ' || c == u'\t';
}

String trimmed(const String& text) {
    size_t begin = 0, end = text.size();
    while (begin < end && isBlank(text[begin])) ++begin;
    while (end > begin && isBlank(text[end - 1])) --end;
    return text.substr(begin, end - begin);
}

std::vector<String> lines(const String& text) {
    std::vector<String> out;
    String line;
    for (const char16_t c : text) {
        if (c == u'\r' || c == u'\n') {
            out.push_back(line);
            line.clear();
        } else {
            line += c;
        }
    }
    out.push_back(line);
    return out;
}

// "[Name]" -> "Name"; nothing when the line is not a section header.
std::optional<String> sectionName(const String& line) {
    if (line.empty() || line[0] != u'[') return std::nullopt;
    const auto close = line.find(u']');
    return trimmed(line.substr(1, close == String::npos ? String::npos : close - 1));
}

String unquoted(const String& value) {
    if (value.size() >= 2 && (value.front() == u'"' || value.front() == u'\'') &&
        value.back() == value.front())
        return value.substr(1, value.size() - 2);
    return value;
}

}  // namespace

std::optional<String> iniValue(const String& text, const String& section, const String& key) {
    bool inSection = false;
    bool sectionSeen = false;
    for (const auto& raw : lines(text)) {
        const String line = trimmed(raw);
        if (auto name = sectionName(line)) {
            // Only the first section of that name is read.
            if (inSection) return std::nullopt;
            inSection = !sectionSeen && vb::equalText(*name, section);
            sectionSeen = sectionSeen || inSection;
            continue;
        }
        if (!inSection || line.empty() || line[0] == u';') continue;
        const auto eq = line.find(u'=');
        if (eq == String::npos) continue;
        if (vb::equalText(trimmed(line.substr(0, eq)), key))
            return unquoted(trimmed(line.substr(eq + 1)));
    }
    return std::nullopt;
}

String profileAnswer(const std::optional<String>& value, const String& defaultValue,
                     uint32_t bufferSize) {
    if (bufferSize == 0) return String();
    String answer = value ? *value : defaultValue;
    if (!value) {
        while (!answer.empty() && answer.back() == u' ') answer.pop_back();
    }
    if (answer.size() > bufferSize - 1) answer.resize(bufferSize - 1);
    return answer;
}

}  // namespace native
