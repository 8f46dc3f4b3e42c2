#pragma once
// A transcript as a person reads it: each call with its result, message boxes drawn as boxes
// with caption, icon and text, writes as `object 100: info 12 <- "600"`, snapshots as text.
#include <string>

#include "sim/Json.h"

namespace sim {

std::string textReport(const Json& transcript);  // UTF-8, lines ending in "\n"

}  // namespace sim
