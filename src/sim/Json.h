#pragma once
// The JSON type of scenarios and transcripts: objects keep the order they were written in.
#include <nlohmann/json.hpp>

#include "vb/Strings.h"

namespace sim {

using Json = nlohmann::ordered_json;

inline vb::String fromJsonText(const Json& j) {
    return vb::fromUtf8(j.get<std::string>());
}
inline Json toJsonText(const vb::String& text) {
    return Json(vb::toUtf8(text));
}

}  // namespace sim
