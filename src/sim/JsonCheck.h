#pragma once
// Strict reading of JSON values: every failure names the JSON path of the value.
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "sim/Json.h"

namespace sim::check {

[[noreturn]] void fail(const std::string& path, const std::string& message);

std::string key(const std::string& path, const std::string& name);  // "a.b"
std::string at(const std::string& path, size_t index);              // "a[3]"

void object(const Json& j, const std::string& path);
void array(const Json& j, const std::string& path);
// Raises "unknown key" for a key not in `allowed`.
void keys(const Json& j, const std::string& path, std::initializer_list<std::string_view> allowed);
void required(const Json& j, const std::string& path, const char* name);

vb::String text(const Json& j, const std::string& path);
int32_t integer(const Json& j, const std::string& path);
bool boolean(const Json& j, const std::string& path);
// A key that must be a whole number ("12" in "info": { "12": ... }).
int32_t numericKey(const std::string& name, const std::string& path);

}  // namespace sim::check
