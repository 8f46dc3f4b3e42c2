#pragma once
// Strict loading of scenario files: an unknown key, a wrong type or invalid JSON is an error
// whose message names the place ("scene[0].info.12: expected a string").
#include <memory>
#include <stdexcept>
#include <string>

#include "sim/Scenario.h"

namespace sim {

class ScenarioError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// `text` is the file's UTF-8 content. Raises ScenarioError.
std::unique_ptr<Scenario> loadScenario(const std::string& text);

// The bytes of a scenario (or golden) file; raises ScenarioError when it cannot be read.
std::string readWholeFile(const std::string& path);

// A scenario file loaded; every message of a file that does not load begins with its path.
std::unique_ptr<Scenario> loadScenarioFile(const std::string& path);

}  // namespace sim
