#include "sim/ScenarioLoader.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "sim/JsonCheck.h"
#include "sim/StrictJson.h"
#include "sim/UiActions.h"

namespace sim {

namespace {

using check::at;
using check::key;

void loadFiles(World& world, const Json& files, const std::string& path) {
    check::object(files, path);
    for (const auto& item : files.items()) {
        const std::string where = key(path, item.key());
        const String name = vb::fromUtf8(item.key());
        if (!parsePath(name)) check::fail(where, "not a usable Windows path");
        if (item.value().is_string()) {
            world.files.putFile(name, check::text(item.value(), where));
            continue;
        }
        if (!item.value().is_object()) check::fail(where, "expected a string or { \"size\": N }");
        check::keys(item.value(), where, {"size"});
        check::required(item.value(), where, "size");
        const int32_t size = check::integer(item.value()["size"], key(where, "size"));
        if (size < 0) check::fail(key(where, "size"), "expected a size of 0 or more");
        world.files.putFileOfSize(name, size);
    }
}

void loadDictionary(Application& app, const Json& dict, const std::string& path) {
    check::object(dict, path);
    for (const auto& language : dict.items()) {
        const std::string where = key(path, language.key());
        check::object(language.value(), where);
        auto& entries = app.dictionary[vb::fromUtf8(language.key())];
        for (const auto& entry : language.value().items())
            entries[vb::fromUtf8(entry.key())] =
                check::text(entry.value(), key(where, entry.key()));
    }
}

void loadApplication(World& world, const Json& j, const std::string& path) {
    check::keys(j, path, {"language", "moduleDir", "decimalSeparator", "files", "dictionary"});
    Application& app = world.application;
    if (j.contains("language")) app.language = check::text(j["language"], key(path, "language"));
    if (j.contains("moduleDir")) {
        app.moduleDir = check::text(j["moduleDir"], key(path, "moduleDir"));
        if (!parsePath(app.moduleDir))
            check::fail(key(path, "moduleDir"), "not a usable Windows path");
    }
    if (j.contains("decimalSeparator")) {
        const String sep = check::text(j["decimalSeparator"], key(path, "decimalSeparator"));
        if (sep.size() != 1) check::fail(key(path, "decimalSeparator"), "expected one character");
        app.decimalSeparator = sep[0];
    }
    if (j.contains("files")) loadFiles(world, j["files"], key(path, "files"));
    if (j.contains("dictionary")) loadDictionary(app, j["dictionary"], key(path, "dictionary"));
}

TableLine loadLine(const Json& j, const std::string& path) {
    check::keys(j, path, {"code", "name", "cols", "data"});
    TableLine line;
    if (j.contains("code")) line.code = check::text(j["code"], key(path, "code"));
    if (j.contains("name")) line.name = check::text(j["name"], key(path, "name"));
    if (j.contains("data")) line.data = check::text(j["data"], key(path, "data"));
    if (j.contains("cols")) {
        const std::string where = key(path, "cols");
        check::object(j["cols"], where);
        for (const auto& col : j["cols"].items())
            line.cols[check::numericKey(col.key(), where)] =
                check::text(col.value(), key(where, col.key()));
    }
    return line;
}

void loadCatalog(World& world, const std::string& name, const Json& j, const std::string& path) {
    check::keys(j, path, {"language", "tables"});
    const String catalogPath = vb::fromUtf8(name);
    if (!parsePath(catalogPath)) check::fail(path, "not a usable Windows path");
    String language;
    if (j.contains("language")) language = check::text(j["language"], key(path, "language"));
    CatalogData& catalog = world.addCatalog(catalogPath, language);
    if (!j.contains("tables")) return;
    const std::string tablesPath = key(path, "tables");
    check::object(j["tables"], tablesPath);
    for (const auto& table : j["tables"].items()) {
        const std::string where = key(tablesPath, table.key());
        Table& target = catalog.tables[check::numericKey(table.key(), tablesPath)];
        check::array(table.value(), where);
        for (size_t i = 0; i < table.value().size(); ++i)
            target.add(loadLine(table.value()[i], at(where, i)));
    }
}

// Children nest at most this deep below a top-level object (scenes of a component 2,000 levels
// down are played): the loader recurses once per level, each level holding its JSON path, so a
// file of a few MB could otherwise nest deep enough to exhaust the stack.
constexpr int kMaxDepth = 2500;

void loadObject(Scene& scene, const Json& j, const std::string& path, int32_t parent, int depth) {
    const bool top = depth == 0;
    if (top) {
        check::keys(j, path, {"id", "info", "script", "children", "parent"});
    } else {
        check::keys(j, path, {"id", "info", "script", "children"});
    }
    check::required(j, path, "id");
    const int32_t id = check::integer(j["id"], key(path, "id"));
    if (top && j.contains("parent")) {
        parent = check::integer(j["parent"], key(path, "parent"));
        if (parent != kNoObject && parent != kCurrentObject)
            check::fail(key(path, "parent"), "expected -1 or -2");
    }
    SceneObject* object = nullptr;
    try {
        object = &scene.add(id, parent);
    } catch (const std::invalid_argument& e) {
        check::fail(key(path, "id"), e.what());
    }
    if (j.contains("info")) {
        const std::string where = key(path, "info");
        check::object(j["info"], where);
        for (const auto& item : j["info"].items())
            object->info[check::numericKey(item.key(), where)] =
                check::text(item.value(), key(where, item.key()));
    }
    if (j.contains("script")) object->script = check::text(j["script"], key(path, "script"));
    if (!j.contains("children")) return;
    const std::string where = key(path, "children");
    check::array(j["children"], where);
    for (size_t i = 0; i < j["children"].size(); ++i) {
        const Json& child = j["children"][i];
        if (child.is_number()) {
            if (check::integer(child, at(where, i)) != kNoObject)
                check::fail(at(where, i), "expected an object or -1");
            scene.addEmptyChild(id);
        } else {
            if (!child.is_object()) check::fail(at(where, i), "expected an object or -1");
            if (depth == kMaxDepth)
                check::fail(at(where, i),
                            "objects nested more than " + std::to_string(kMaxDepth) + " deep");
            loadObject(scene, child, at(where, i), id, depth + 1);
        }
    }
}

void loadAttributeDialog(CallSpec& call, const Json& j, const std::string& path) {
    check::object(j, path);
    for (const auto& item : j.items())
        call.attributeDialog[check::numericKey(item.key(), path)] =
            check::text(item.value(), key(path, item.key()));
}

void checkArgs(const Json& j, const std::string& path) {
    check::array(j, path);
    for (size_t i = 0; i < j.size(); ++i) {
        const Json& arg = j[i];
        if (!arg.is_string() && !arg.is_number() && !arg.is_boolean() && !arg.is_null())
            check::fail(at(path, i), "expected a string, a number, true, false or null");
    }
}

CallSpec loadCall(const Json& j, const std::string& path) {
    check::keys(j, path, {"class", "method", "object", "session", "attributeDialog", "args", "ui"});
    check::required(j, path, "class");
    check::required(j, path, "method");
    CallSpec call;
    call.className = vb::toUtf8(check::text(j["class"], key(path, "class")));
    if (call.className != "Plugin" && call.className != "Wizard")
        check::fail(key(path, "class"), "expected \"Plugin\" or \"Wizard\"");
    call.method = vb::toUtf8(check::text(j["method"], key(path, "method")));
    if (j.contains("object")) call.object = check::integer(j["object"], key(path, "object"));
    if (j.contains("session")) call.session = check::boolean(j["session"], key(path, "session"));
    if (j.contains("attributeDialog"))
        loadAttributeDialog(call, j["attributeDialog"], key(path, "attributeDialog"));
    if (j.contains("args")) {
        checkArgs(j["args"], key(path, "args"));
        call.args = j["args"];
    }
    if (j.contains("ui")) call.ui = loadUiActions(j["ui"], key(path, "ui"));
    return call;
}

void loadWorld(Scenario& scenario, const Json& root) {
    check::keys(root, "", {"application", "catalogs", "scene", "calls"});
    if (root.contains("application"))
        loadApplication(scenario.world, root["application"], "application");
    if (root.contains("catalogs")) {
        check::object(root["catalogs"], "catalogs");
        for (const auto& item : root["catalogs"].items())
            loadCatalog(scenario.world, item.key(), item.value(), key("catalogs", item.key()));
    }
    if (root.contains("scene")) {
        check::array(root["scene"], "scene");
        for (size_t i = 0; i < root["scene"].size(); ++i)
            loadObject(scenario.world.scene, root["scene"][i], at("scene", i), kNoObject, 0);
    }
}

}  // namespace

std::unique_ptr<Scenario> loadScenario(const std::string& text) {
    const Json root = parseStrict(text);
    auto scenario = std::make_unique<Scenario>();
    loadWorld(*scenario, root);
    if (root.contains("calls")) {
        check::array(root["calls"], "calls");
        for (size_t i = 0; i < root["calls"].size(); ++i)
            scenario->calls.push_back(loadCall(root["calls"][i], at("calls", i)));
    }
    return scenario;
}

std::string readWholeFile(const std::string& path) {
    std::error_code error;
    if (std::filesystem::is_directory(path, error))
        throw ScenarioError(path + ": a folder, not a scenario file");
    std::ifstream in(path, std::ios::binary);
    if (!in) throw ScenarioError(path + ": cannot open the file");
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

std::unique_ptr<Scenario> loadScenarioFile(const std::string& path) {
    const std::string text = readWholeFile(path);
    try {
        return loadScenario(text);
    } catch (const ScenarioError& e) {
        throw ScenarioError(path + ": " + e.what());
    }
}

}  // namespace sim
