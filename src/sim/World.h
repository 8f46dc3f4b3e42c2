#pragma once
// The simulated host's world: the application's settings, its files, the catalogues with their
// numbered tables, and the scene's objects. It can be filled from a scenario file or built
// directly (tests, benchmarks). Lookups are hashed, so large scenes stay fast.
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "sim/VirtualFs.h"

namespace sim {

struct TableLine {
    String code;
    String name;
    std::unordered_map<int32_t, String> cols;
    String data;  // the resource exported by FileExportResource
};

// Lines ranked from 1 in the order they were added; code and name lookups find the first
// line that matches exactly.
class Table {
  public:
    void add(TableLine line);
    int32_t size() const { return static_cast<int32_t>(lines_.size()); }
    int32_t rankFromCode(const String& code) const;  // 0 when absent
    int32_t rankFromName(const String& name) const;  // 0 when absent
    const TableLine* line(int32_t rank) const;       // null when out of range

  private:
    std::vector<TableLine> lines_;
    std::unordered_map<String, int32_t> byCode_, byName_;
};

struct CatalogData {
    String path;  // as the scenario wrote it
    String language;
    std::unordered_map<int32_t, Table> tables;

    const Table* table(int32_t number) const;
};

constexpr int32_t kNoObject = -1;
constexpr int32_t kCurrentObject = -2;

struct SceneObject {
    int32_t id = 0;
    int32_t parent = kNoObject;
    std::map<int32_t, String> info;
    String script;
    std::vector<int32_t> children;  // ids in order; -1 for a position that yields no object
};

class Scene {
  public:
    // Adds an object under `parent` (an existing id) or at the top level (parent -1 or -2).
    // Raises std::invalid_argument for an id already used or a parent that does not exist.
    SceneObject& add(int32_t id, int32_t parent = kNoObject);
    void addEmptyChild(int32_t parent);  // a child position that yields the id -1

    SceneObject* find(int32_t id);
    const SceneObject* find(int32_t id) const;

    // Every object, depth first in the order added.
    const std::vector<int32_t>& order() const;

  private:
    void visit(int32_t id, std::vector<int32_t>& out) const;

    std::unordered_map<int32_t, SceneObject> objects_;
    std::vector<int32_t> topLevel_;
    mutable std::vector<int32_t> order_;
    mutable bool orderValid_ = true;
};

struct Application {
    String language = u"ESP";
    String moduleDir = u"C:\\Quorbel";
    char16_t decimalSeparator = u'.';
    std::unordered_map<String, std::unordered_map<String, String>> dictionary;
};

class World {
  public:
    World() = default;
    World(World&&) = default;
    World& operator=(World&&) = default;
    // A copy holds catalogues of its own, added in the same order.
    World(const World& other);
    World& operator=(const World&) = delete;

    Application application;
    VirtualFs files;
    Scene scene;

    // The catalogue's path also becomes a file of size 1024 unless a file is already there.
    CatalogData& addCatalog(const String& path, String language = u"");
    const CatalogData* catalog(const String& path) const;  // paths compare without case
    const std::vector<const CatalogData*>& catalogs() const { return order_; }  // as added

  private:
    std::unordered_map<String, std::unique_ptr<CatalogData>> catalogs_;
    std::vector<const CatalogData*> order_;
};

}  // namespace sim
