#include "sim/HostState.h"

#include <string>

#include "vb/Errors.h"

namespace sim {

int32_t HostState::resolve(int32_t id) const {
    if (id == kCurrentObject && call.spec && call.spec->object) return *call.spec->object;
    return id;
}

std::optional<FaultKind> HostState::enter(const char* member) {
    if (faults.lacks(member)) throw vb::RuntimeError(vb::err::kNoSuchMember);
    const int64_t call = ++hostCallsMade;
    recorder.hostCall(member);
    if (callTrace) callTrace->push_back(member);
    if (hostCallBudget > 0 && call > hostCallBudget)
        throw vb::RuntimeError(kInjectedError, u"Host call budget spent");
    const std::optional<FaultKind> fault = faults.at(call);
    if (!fault) return std::nullopt;
    fired.push_back({recorder.calls().size(), call, *fault, member});
    if (*fault == FaultKind::Raise)
        throw vb::RuntimeError(kInjectedError, injectedDescription(call, member));
    return fault;
}

const String* HostState::attributeDialogText(int32_t handle, int32_t controlId) const {
    if (!call.spec || handle != attributeDialogHandle()) return nullptr;
    const auto it = call.spec->attributeDialog.find(controlId);
    return it == call.spec->attributeDialog.end() ? nullptr : &it->second;
}

WriteResult HostState::writeResource(const String& path, const String& content) {
    if (resourceWriter) return resourceWriter(path, content);
    return world.files.writeFile(path, content);
}

void HostState::noteCreatedFile(const String& path) {
    const auto parsed = parsePath(path);
    if (!parsed) return;
    if (createdKeys_.insert(parsed->key()).second) createdFiles_.push_back(path);
}

Json HostState::objectsJson() const {
    Json objects = Json::object();
    for (const int32_t id : world.scene.order()) {
        Json info = Json::object();
        for (const auto& [code, value] : world.scene.find(id)->info)
            info[std::to_string(code)] = toJsonText(value);
        objects[std::to_string(id)] = std::move(info);
    }
    return objects;
}

Json HostState::filesJson() const {
    Json files = Json::array();
    for (const auto& path : createdFiles_) files.push_back(toJsonText(path));
    return files;
}

}  // namespace sim
