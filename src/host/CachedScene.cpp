#include "host/CachedHost.h"

namespace host {

template <class Ask>
Variant CachedScene::read(Member member, int32_t a, int32_t b, int32_t c, Ask&& ask) {
    return cache_->read(&cache_->scene(), NumKey{member, a, b, c}, std::forward<Ask>(ask));
}

Variant CachedScene::ObjectGetInfo(int32_t& sessionId, int32_t objectId, int32_t code) {
    return read(Member::ObjectGetInfo, objectId, code, 0,
                [&] { return inner_->ObjectGetInfo(sessionId, objectId, code); });
}

// Any write forgets every scene answer: -2 and the object's own id name the same object, and
// the host may derive other information from what was written.
Variant CachedScene::ObjectSetInfo(int32_t& sessionId, int32_t objectId, const String& value,
                                   int32_t code) {
    cache_->sceneWritten();
    return inner_->ObjectSetInfo(sessionId, objectId, value, code);
}

Variant CachedScene::ViewRefresh(int32_t& sessionId) {
    return inner_->ViewRefresh(sessionId);
}

Variant CachedScene::SceneGetObjectsNb(int32_t& sessionId) {
    return read(Member::SceneGetObjectsNb, 0, 0, 0,
                [&] { return inner_->SceneGetObjectsNb(sessionId); });
}

Variant CachedScene::SceneGetObjectId(int32_t& sessionId, int32_t position) {
    return read(Member::SceneGetObjectId, position, 0, 0,
                [&] { return inner_->SceneGetObjectId(sessionId, position); });
}

Variant CachedScene::ObjectGetParentId(int32_t& sessionId, int32_t objectId) {
    return read(Member::ObjectGetParentId, objectId, 0, 0,
                [&] { return inner_->ObjectGetParentId(sessionId, objectId); });
}

Variant CachedScene::ObjectGetChildrenNb(int32_t& sessionId, int32_t objectId, int16_t mode) {
    return read(Member::ObjectGetChildrenNb, objectId, mode, 0,
                [&] { return inner_->ObjectGetChildrenNb(sessionId, objectId, mode); });
}

Variant CachedScene::ObjectGetChildId(int32_t& sessionId, int32_t objectId, int32_t position,
                                      int16_t mode) {
    return read(Member::ObjectGetChildId, objectId, position, mode,
                [&] { return inner_->ObjectGetChildId(sessionId, objectId, position, mode); });
}

Variant CachedScene::ObjectGetScript(int32_t& sessionId, int32_t objectId) {
    return read(Member::ObjectGetScript, objectId, 0, 0,
                [&] { return inner_->ObjectGetScript(sessionId, objectId); });
}

Variant CachedScene::EditReplaceSelection(int32_t& sessionId, const String& catalog,
                                          const String& reference, int16_t a, int32_t width,
                                          int32_t depth, int32_t height, int16_t b) {
    cache_->sceneWritten();
    return inner_->EditReplaceSelection(sessionId, catalog, reference, a, width, depth, height, b);
}

}  // namespace host
