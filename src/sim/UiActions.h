#pragma once
// The user actions of a call ("ui"), read strictly: each kind takes its own keys.
#include <string>
#include <vector>

#include "dialog/UserAction.h"
#include "sim/Json.h"

namespace sim {

std::vector<dialog::UserAction> loadUiActions(const Json& j, const std::string& path);

}  // namespace sim
