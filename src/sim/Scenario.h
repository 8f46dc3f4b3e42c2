#pragma once
// A scenario: a world and the host's calls into the plug-in, in order.
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "dialog/UserAction.h"
#include "sim/Json.h"
#include "sim/World.h"

namespace sim {

struct CallSpec {
    std::string className;  // "Plugin" or "Wizard"
    std::string method;
    std::optional<int32_t> object;              // what the id -2 means during the call
    bool session = true;                        // false: no session opens
    std::map<int32_t, String> attributeDialog;  // control id -> text
    std::optional<Json> args;                   // an array, for methods without a call block
    std::vector<dialog::UserAction> ui;
};

struct Scenario {
    World world;
    std::vector<CallSpec> calls;
};

}  // namespace sim
