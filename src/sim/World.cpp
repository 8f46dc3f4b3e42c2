#include "sim/World.h"

#include <stdexcept>
#include <string>

namespace sim {

namespace {

constexpr int64_t kCatalogFileSize = 1024;

String catalogKey(const String& path) {
    const auto parsed = parsePath(path);
    return parsed ? parsed->key() : path;
}

}  // namespace

void Table::add(TableLine line) {
    const int32_t rank = size() + 1;
    if (!line.code.empty()) byCode_.try_emplace(line.code, rank);
    if (!line.name.empty()) byName_.try_emplace(line.name, rank);
    lines_.push_back(std::move(line));
}

int32_t Table::rankFromCode(const String& code) const {
    const auto it = byCode_.find(code);
    return it == byCode_.end() ? 0 : it->second;
}

int32_t Table::rankFromName(const String& name) const {
    const auto it = byName_.find(name);
    return it == byName_.end() ? 0 : it->second;
}

const TableLine* Table::line(int32_t rank) const {
    if (rank < 1 || rank > size()) return nullptr;
    return &lines_[static_cast<size_t>(rank - 1)];
}

const Table* CatalogData::table(int32_t number) const {
    const auto it = tables.find(number);
    return it == tables.end() ? nullptr : &it->second;
}

SceneObject& Scene::add(int32_t id, int32_t parent) {
    if (id == kNoObject || id == kCurrentObject)
        throw std::invalid_argument("the ids -1 and -2 are reserved");
    if (objects_.count(id))
        throw std::invalid_argument("id " + std::to_string(id) + " is used twice");
    SceneObject* owner = nullptr;
    if (parent != kNoObject && parent != kCurrentObject) {
        owner = find(parent);
        if (!owner) throw std::invalid_argument("no object " + std::to_string(parent));
    }
    SceneObject& object = objects_[id];
    object.id = id;
    object.parent = parent;
    if (owner) {
        owner->children.push_back(id);
    } else {
        topLevel_.push_back(id);
    }
    orderValid_ = false;
    return object;
}

void Scene::addEmptyChild(int32_t parent) {
    SceneObject* owner = find(parent);
    if (!owner) throw std::invalid_argument("no object " + std::to_string(parent));
    owner->children.push_back(kNoObject);
}

SceneObject* Scene::find(int32_t id) {
    const auto it = objects_.find(id);
    return it == objects_.end() ? nullptr : &it->second;
}

const SceneObject* Scene::find(int32_t id) const {
    const auto it = objects_.find(id);
    return it == objects_.end() ? nullptr : &it->second;
}

const std::vector<int32_t>& Scene::order() const {
    if (!orderValid_) {
        order_.clear();
        order_.reserve(objects_.size());
        for (const int32_t id : topLevel_) visit(id, order_);
        orderValid_ = true;
    }
    return order_;
}

void Scene::visit(int32_t id, std::vector<int32_t>& out) const {
    out.push_back(id);
    for (const int32_t child : objects_.at(id).children) {
        if (child != kNoObject) visit(child, out);
    }
}

World::World(const World& other)
    : application(other.application), files(other.files), scene(other.scene) {
    for (const CatalogData* catalog : other.order_) {
        auto copy = std::make_unique<CatalogData>(*catalog);
        order_.push_back(copy.get());
        catalogs_.emplace(catalogKey(catalog->path), std::move(copy));
    }
}

CatalogData& World::addCatalog(const String& path, String language) {
    auto& slot = catalogs_[catalogKey(path)];
    if (!slot) {
        slot = std::make_unique<CatalogData>();
        order_.push_back(slot.get());
    }
    slot->path = path;
    slot->language = std::move(language);
    if (!files.fileExists(path) && !files.folderExists(path))
        files.putFileOfSize(path, kCatalogFileSize);
    return *slot;
}

const CatalogData* World::catalog(const String& path) const {
    const auto it = catalogs_.find(catalogKey(path));
    return it == catalogs_.end() ? nullptr : it->second.get();
}

}  // namespace sim
