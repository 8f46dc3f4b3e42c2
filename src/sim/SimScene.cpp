#include "sim/SimHost.h"

namespace sim {

namespace {

const String kEmpty;

}  // namespace

const SceneObject* SimScene::object(int32_t id) const {
    return s_.world.scene.find(s_.resolve(id));
}

Variant SimScene::ObjectGetInfo(int32_t&, int32_t objectId, int32_t code) {
    return s_.member(Member::ObjectGetInfo, [&] {
        const SceneObject* o = object(objectId);
        if (!o) return Variant(kEmpty);
        const auto it = o->info.find(code);
        return Variant(it == o->info.end() ? kEmpty : it->second);
    });
}

Variant SimScene::ObjectSetInfo(int32_t&, int32_t objectId, const String& value, int32_t code) {
    return s_.member(Member::ObjectSetInfo, [&] {
        const int32_t id = s_.resolve(objectId);
        s_.recorder.setInfo(id, code, value);
        if (SceneObject* o = s_.world.scene.find(id)) o->info[code] = value;
        return Variant();
    });
}

Variant SimScene::ViewRefresh(int32_t&) {
    return s_.member(Member::ViewRefresh, [&] {
        s_.recorder.viewRefresh();
        return Variant();
    });
}

Variant SimScene::SceneGetObjectsNb(int32_t&) {
    return s_.member(Member::SceneGetObjectsNb,
                     [&] { return Variant(static_cast<int32_t>(s_.world.scene.order().size())); });
}

Variant SimScene::SceneGetObjectId(int32_t&, int32_t position) {
    return s_.member(Member::SceneGetObjectId, [&] {
        const auto& order = s_.world.scene.order();
        if (position < 1 || static_cast<size_t>(position) > order.size())
            return Variant(int32_t{kNoObject});
        return Variant(order[static_cast<size_t>(position - 1)]);
    });
}

Variant SimScene::ObjectGetParentId(int32_t&, int32_t objectId) {
    return s_.member(Member::ObjectGetParentId, [&] {
        const SceneObject* o = object(objectId);
        return Variant(o ? o->parent : int32_t{kNoObject});
    });
}

Variant SimScene::ObjectGetChildrenNb(int32_t&, int32_t objectId, int16_t) {
    return s_.member(Member::ObjectGetChildrenNb, [&] {
        const SceneObject* o = object(objectId);
        return Variant(o ? static_cast<int32_t>(o->children.size()) : int32_t{0});
    });
}

Variant SimScene::ObjectGetChildId(int32_t&, int32_t objectId, int32_t position, int16_t) {
    return s_.member(Member::ObjectGetChildId, [&] {
        const SceneObject* o = object(objectId);
        if (!o || position < 1 || static_cast<size_t>(position) > o->children.size())
            return Variant(int32_t{kNoObject});
        return Variant(o->children[static_cast<size_t>(position - 1)]);
    });
}

Variant SimScene::ObjectGetScript(int32_t&, int32_t objectId) {
    return s_.member(Member::ObjectGetScript, [&] {
        const SceneObject* o = object(objectId);
        return Variant(o ? o->script : kEmpty);
    });
}

Variant SimScene::EditReplaceSelection(int32_t&, const String& catalog, const String& reference,
                                       int16_t, int32_t width, int32_t depth, int32_t height,
                                       int16_t) {
    return s_.member(Member::EditReplaceSelection, [&] {
        s_.recorder.replaceSelection(catalog, reference, width, depth, height);
        return Variant(true);
    });
}

}  // namespace sim
