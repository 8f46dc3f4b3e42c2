#include "sim/StrictJson.h"

#include <set>
#include <variant>
#include <vector>

#include "sim/JsonCheck.h"
#include "sim/ScenarioLoader.h"

namespace sim {

namespace {

// One open object or array while parsing: how its parent reaches it, and what it holds so far.
struct Open {
    std::variant<std::monostate, std::string, size_t> reachedBy;
    bool object = false;
    std::set<std::string> keys;
    std::string lastKey;
    size_t next = 0;  // an array's next index
};

// The JSON path of the innermost open value, as the loader's messages write paths. Built only
// for a message: paths grow with nesting.
std::string pathOf(const std::vector<Open>& open) {
    std::string path;
    for (const auto& o : open) {
        if (const auto* name = std::get_if<std::string>(&o.reachedBy))
            path = check::key(path, *name);
        if (const auto* index = std::get_if<size_t>(&o.reachedBy)) path = check::at(path, *index);
    }
    return path;
}

class DuplicateKeys {
  public:
    bool operator()(int /*depth*/, Json::parse_event_t event, Json& parsed) {
        using E = Json::parse_event_t;
        switch (event) {
            case E::object_start:
            case E::array_start:
                open_.push_back(Open{place(), event == E::object_start, {}, {}, 0});
                break;
            case E::object_end:
            case E::array_end:
                if (!open_.empty()) open_.pop_back();
                break;
            case E::key:
                key(parsed.get<std::string>());
                break;
            case E::value:
                place();
                break;
        }
        return true;
    }

  private:
    // Where a value now starting sits in the innermost open container.
    std::variant<std::monostate, std::string, size_t> place() {
        if (open_.empty()) return std::monostate{};
        Open& parent = open_.back();
        if (parent.object) return parent.lastKey;
        return parent.next++;
    }

    void key(const std::string& name) {
        if (open_.empty()) return;
        Open& object = open_.back();
        if (!object.keys.insert(name).second)
            check::fail(check::key(pathOf(open_), name),
                        "written twice in one object (the format keeps no duplicate key)");
        object.lastKey = name;
    }

    std::vector<Open> open_;
};

// "[json.exception.parse_error.101] parse error at line 1, column 3: ..." -> "line 1, column 3:
// ..."
std::string withoutLibraryPrefix(std::string message) {
    if (message.rfind("[json.exception.", 0) == 0) {
        const size_t end = message.find("] ");
        if (end != std::string::npos) message.erase(0, end + 2);
    }
    for (const char* prefix : {"parse error at ", "parse error: "})
        if (message.rfind(prefix, 0) == 0) message.erase(0, std::string(prefix).size());
    return message;
}

}  // namespace

Json parseStrict(const std::string& text) {
    try {
        return Json::parse(text, DuplicateKeys{});
    } catch (const Json::exception& e) {  // a syntax error, or a number beyond a double
        throw ScenarioError("invalid JSON: " + withoutLibraryPrefix(e.what()));
    }
}

}  // namespace sim
