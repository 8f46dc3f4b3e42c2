#include "HostObjects.h"

#include <utility>

#include "SimDispatch.h"
#include "sim/SimHost.h"
#include "vb/Strings.h"

namespace hostdriver {

namespace {

template <class Object, class... P, size_t... I>
vb::Variant callWith(Object& object, vb::Variant (Object::*member)(P...), CallArgs& args,
                     std::index_sequence<I...>) {
    return (object.*member)(args.get<P>(I)...);
}

// A member served by name, its shapes told by its parameter types.
template <class Object, class... P>
ServedMember serve(const wchar_t* name, Object& object, vb::Variant (Object::*member)(P...)) {
    return {name, {host::shapeOf<P>()...}, [&object, member](CallArgs& args) {
                return callWith(object, member, args, std::index_sequence_for<P...>{});
            }};
}

#define QUORBEL_SERVE(object, member, ...) serve(L"" #member, o, &host::object::member),

std::vector<ServedMember> appliMembers(host::Appli& o) {
    return {QUORBEL_APPLI_MEMBERS(QUORBEL_SERVE)};
}

std::vector<ServedMember> sceneMembers(host::Scene& o) {
    return {QUORBEL_SCENE_MEMBERS(QUORBEL_SERVE)};
}

std::vector<ServedMember> catalogMembers(host::Catalog& o) {
    return {QUORBEL_CATALOG_MEMBERS(QUORBEL_SERVE)};
}

#undef QUORBEL_SERVE

template <class T, class Object>
IDispatch* make(const vb::String& progId, sim::HostState& state,
                std::vector<ServedMember> (*members)(Object&)) {
    auto object = std::make_shared<T>(state);
    auto table = members(*object);
    // A member the fault plan leaves out is not there at all: its name is unknown.
    std::erase_if(table, [&](const ServedMember& m) {
        return state.faults.lacks(vb::toUtf8(reinterpret_cast<const char16_t*>(m.name)).c_str());
    });
    return new SimDispatch(std::wstring(progId.begin(), progId.end()), std::move(object),
                           std::move(table));
}

}  // namespace

IDispatch* createHostObject(const std::wstring& progId, sim::HostState& state) {
    const vb::String id(progId.begin(), progId.end());
    if (vb::equalText(id, host::kProgIdAppli))
        return make<sim::SimAppli>(host::kProgIdAppli, state, appliMembers);
    if (vb::equalText(id, host::kProgIdScene))
        return make<sim::SimScene>(host::kProgIdScene, state, sceneMembers);
    if (vb::equalText(id, host::kProgIdCatalog))
        return make<sim::SimCatalog>(host::kProgIdCatalog, state, catalogMembers);
    return nullptr;
}

}  // namespace hostdriver
