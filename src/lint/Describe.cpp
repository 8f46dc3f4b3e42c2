#include <algorithm>

#include "lint/Lint.h"
#include "vb/Strings.h"

namespace lint {

std::string describe(const Finding& f) {
    std::string place = vb::toUtf8(f.catalog);
    if (f.table > 0) place += ", table " + std::to_string(f.table);
    if (!f.line.empty()) place += ", line " + vb::toUtf8(f.line);
    const char* label = f.severity == Severity::Warning ? "warning: " : "";
    return place + ": " + label + vb::toUtf8(f.text);
}

std::string summary(const std::vector<Finding>& findings) {
    const auto warnings = std::count_if(findings.begin(), findings.end(), [](const Finding& f) {
        return f.severity == Severity::Warning;
    });
    const auto errors = static_cast<long>(findings.size()) - warnings;
    auto counted = [](long n, const char* what) {
        return std::to_string(n) + " " + what + (n == 1 ? "" : "s");
    };
    if (findings.empty()) return "No findings.";
    if (warnings == 0) return counted(errors, "finding") + ".";
    return counted(errors, "finding") + ", " + counted(warnings, "warning") + ".";
}

bool anyFinding(const std::vector<Finding>& findings) {
    return std::any_of(findings.begin(), findings.end(),
                       [](const Finding& f) { return f.severity == Severity::Finding; });
}

}  // namespace lint
