#include "sim/JsonCheck.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "sim/ScenarioLoader.h"

namespace sim::check {

void fail(const std::string& path, const std::string& message) {
    throw ScenarioError((path.empty() ? std::string("(top level)") : path) + ": " + message);
}

std::string key(const std::string& path, const std::string& name) {
    return path.empty() ? name : path + "." + name;
}

std::string at(const std::string& path, size_t index) {
    return path + "[" + std::to_string(index) + "]";
}

void object(const Json& j, const std::string& path) {
    if (!j.is_object()) fail(path, "expected an object");
}

void array(const Json& j, const std::string& path) {
    if (!j.is_array()) fail(path, "expected an array");
}

void keys(const Json& j, const std::string& path, std::initializer_list<std::string_view> allowed) {
    object(j, path);
    for (const auto& item : j.items()) {
        if (std::find(allowed.begin(), allowed.end(), item.key()) == allowed.end())
            fail(key(path, item.key()), "unknown key");
    }
}

void required(const Json& j, const std::string& path, const char* name) {
    if (!j.contains(name)) fail(key(path, name), "missing");
}

vb::String text(const Json& j, const std::string& path) {
    if (!j.is_string()) fail(path, "expected a string");
    return fromJsonText(j);
}

int32_t integer(const Json& j, const std::string& path) {
    double value = 0;
    if (j.is_number_integer()) {
        const auto wide = j.get<int64_t>();
        if (wide < std::numeric_limits<int32_t>::min() ||
            wide > std::numeric_limits<int32_t>::max())
            fail(path, "expected a 32-bit integer");
        return static_cast<int32_t>(wide);
    }
    if (j.is_number_float()) value = j.get<double>();
    if (!j.is_number_float() || std::floor(value) != value) fail(path, "expected an integer");
    if (value < std::numeric_limits<int32_t>::min() || value > std::numeric_limits<int32_t>::max())
        fail(path, "expected a 32-bit integer");
    return static_cast<int32_t>(value);
}

bool boolean(const Json& j, const std::string& path) {
    if (!j.is_boolean()) fail(path, "expected true or false");
    return j.get<bool>();
}

int32_t numericKey(const std::string& name, const std::string& path) {
    const std::string where = key(path, name);
    size_t start = (!name.empty() && name[0] == '-') ? 1 : 0;
    if (name.size() == start || name.size() > start + 10 ||
        !std::all_of(name.begin() + static_cast<long>(start), name.end(),
                     [](char c) { return c >= '0' && c <= '9'; }))
        fail(where, "expected a number as the key");
    const long long value = std::stoll(name);
    if (value < std::numeric_limits<int32_t>::min() || value > std::numeric_limits<int32_t>::max())
        fail(where, "expected a 32-bit number as the key");
    return static_cast<int32_t>(value);
}

}  // namespace sim::check
