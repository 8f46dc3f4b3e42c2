#pragma once
// Calling the plug-in's public methods by name, as the host does through automation. Methods
// that take a call-parameter block get the runner's block; the others take the scenario's
// `args`, and their by-reference arguments come back after the call.
#include <optional>
#include <string>

#include "handlers/Plugin.h"
#include "host/Factory.h"
#include "sim/Json.h"
#include "wizard/Wizard.h"

namespace sim {

struct MethodCall {
    int32_t block = 0;
    const std::optional<Json>* args = nullptr;  // the scenario's array, if any
    host::Factory* factory = nullptr;
};

struct MethodOutcome {
    Json result;               // true/false, a string, or null
    std::optional<Json> args;  // the arguments after a call that takes arguments
};

// Raise vb::RuntimeError 438 for a method the class does not have, 450 for a wrong number of
// arguments; the method's own errors pass through.
MethodOutcome invoke(handlers::Plugin& plugin, const std::string& method, const MethodCall& call);
MethodOutcome invoke(wizard::Wizard& wizard, const std::string& method, const MethodCall& call);

}  // namespace sim
