#include "HostObjects.h"

#include "SimDispatch.h"
#include "sim/SimHost.h"
#include "vb/Strings.h"

namespace hostdriver {

namespace {

using S = Shape;
using A = CallArgs;

std::vector<Member> appliMembers(sim::SimAppli& o) {
    return {
        {L"StartSessionFromCallParams",
         {S::SessionRef},
         [&o](A& a) { return o.StartSessionFromCallParams(a.session(0)); }},
        {L"EndSession", {S::SessionRef}, [&o](A& a) { return o.EndSession(a.session(0)); }},
        {L"GetLanguage", {S::SessionRef}, [&o](A& a) { return o.GetLanguage(a.session(0)); }},
        {L"GetCallParamsInfo",
         {S::SessionRef, S::Long},
         [&o](A& a) { return o.GetCallParamsInfo(a.session(0), a.i4(1)); }},
        {L"InsertMenuItem",
         {S::SessionRef, S::StrRef, S::Int, S::Int, S::Str, S::Int, S::Int, S::Str, S::Str, S::Str},
         [&o](A& a) {
             return o.InsertMenuItem(a.session(0), a.strRef(1), a.i2(2), a.i2(3), a.str(4), a.i2(5),
                                     a.i2(6), a.str(7), a.str(8), a.str(9));
         }},
    };
}

std::vector<Member> sceneMembers(sim::SimScene& o) {
    return {
        {L"ObjectGetInfo",
         {S::SessionRef, S::Long, S::Long},
         [&o](A& a) { return o.ObjectGetInfo(a.session(0), a.i4(1), a.i4(2)); }},
        {L"ObjectSetInfo",
         {S::SessionRef, S::Long, S::Str, S::Long},
         [&o](A& a) { return o.ObjectSetInfo(a.session(0), a.i4(1), a.str(2), a.i4(3)); }},
        {L"ViewRefresh", {S::SessionRef}, [&o](A& a) { return o.ViewRefresh(a.session(0)); }},
        {L"SceneGetObjectsNb",
         {S::SessionRef},
         [&o](A& a) { return o.SceneGetObjectsNb(a.session(0)); }},
        {L"SceneGetObjectId",
         {S::SessionRef, S::Long},
         [&o](A& a) { return o.SceneGetObjectId(a.session(0), a.i4(1)); }},
        {L"ObjectGetParentId",
         {S::SessionRef, S::Long},
         [&o](A& a) { return o.ObjectGetParentId(a.session(0), a.i4(1)); }},
        {L"ObjectGetChildrenNb",
         {S::SessionRef, S::Long, S::Int},
         [&o](A& a) { return o.ObjectGetChildrenNb(a.session(0), a.i4(1), a.i2(2)); }},
        {L"ObjectGetChildId",
         {S::SessionRef, S::Long, S::Long, S::Int},
         [&o](A& a) { return o.ObjectGetChildId(a.session(0), a.i4(1), a.i4(2), a.i2(3)); }},
        {L"ObjectGetScript",
         {S::SessionRef, S::Long},
         [&o](A& a) { return o.ObjectGetScript(a.session(0), a.i4(1)); }},
        {L"EditReplaceSelection",
         {S::SessionRef, S::Str, S::Str, S::Int, S::Long, S::Long, S::Long, S::Int},
         [&o](A& a) {
             return o.EditReplaceSelection(a.session(0), a.str(1), a.str(2), a.i2(3), a.i4(4),
                                           a.i4(5), a.i4(6), a.i2(7));
         }},
    };
}

std::vector<Member> catalogMembers(sim::SimCatalog& o) {
    return {
        {L"FileLoad",
         {S::SessionRef, S::Str},
         [&o](A& a) { return o.FileLoad(a.session(0), a.str(1)); }},
        {L"GetInfo",
         {S::SessionRef, S::Long},
         [&o](A& a) { return o.GetInfo(a.session(0), a.i4(1)); }},
        {L"DicoGetStringFromKey",
         {S::SessionRef, S::Str, S::Str},
         [&o](A& a) { return o.DicoGetStringFromKey(a.session(0), a.str(1), a.str(2)); }},
        {L"TableGetLinesNb",
         {S::SessionRef, S::Long, S::Int},
         [&o](A& a) { return o.TableGetLinesNb(a.session(0), a.i4(1), a.i2(2)); }},
        {L"TableGetLineRankFromCode",
         {S::SessionRef, S::Long, S::Long, S::Int, S::Str, S::Bool},
         [&o](A& a) {
             return o.TableGetLineRankFromCode(a.session(0), a.i4(1), a.i4(2), a.i2(3), a.str(4),
                                               a.boolean(5));
         }},
        {L"TableGetLineRankFromName",
         {S::SessionRef, S::Long, S::Long, S::Int, S::Str, S::Bool},
         [&o](A& a) {
             return o.TableGetLineRankFromName(a.session(0), a.i4(1), a.i4(2), a.i2(3), a.str(4),
                                               a.boolean(5));
         }},
        {L"TableGetLineInfo",
         {S::SessionRef, S::Long, S::Long, S::Long, S::Int},
         [&o](A& a) {
             return o.TableGetLineInfo(a.session(0), a.i4(1), a.i4(2), a.i4(3), a.i2(4));
         }},
        {L"FileExportResource",
         {S::SessionRef, S::Long, S::Str},
         [&o](A& a) { return o.FileExportResource(a.session(0), a.i4(1), a.str(2)); }},
    };
}

template <class T>
IDispatch* make(const vb::String& progId, sim::HostState& state,
                std::vector<Member> (*members)(T&)) {
    auto object = std::make_shared<T>(state);
    auto table = members(*object);
    // A member the fault plan leaves out is not there at all: its name is unknown.
    std::erase_if(table, [&](const Member& m) {
        return state.faults.lacks(vb::toUtf8(reinterpret_cast<const char16_t*>(m.name)).c_str());
    });
    return new SimDispatch(std::wstring(progId.begin(), progId.end()), std::move(object),
                           std::move(table));
}

}  // namespace

IDispatch* createHostObject(const std::wstring& progId, sim::HostState& state) {
    const vb::String id(progId.begin(), progId.end());
    if (vb::equalText(id, host::kProgIdAppli)) return make(host::kProgIdAppli, state, appliMembers);
    if (vb::equalText(id, host::kProgIdScene)) return make(host::kProgIdScene, state, sceneMembers);
    if (vb::equalText(id, host::kProgIdCatalog))
        return make(host::kProgIdCatalog, state, catalogMembers);
    return nullptr;
}

}  // namespace hostdriver
