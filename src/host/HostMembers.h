#pragma once
// Every member of the host's three automation objects, once: its object, its name, how the kept
// reads treat it, and its arguments in order, each with its shape at the boundary and its name.
// The abstract interfaces (Host.h), the caching decorator and its keys, the simulated host's
// declarations, the Windows shell's calls by name and the test host's served objects are all
// derived from these lists, so no two of them can disagree on a member or an argument.
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "host/MemberMacros.h"
#include "vb/Variant.h"

namespace host {

using vb::String;
using vb::Variant;

// An argument's shape: the VARIANT type it has at the boundary.
enum class Shape : uint8_t {
    SessionRef,  // VT_I4|VT_BYREF: the session id, or the call-parameter block that opens one
    Long,        // VT_I4
    Int,         // VT_I2
    Bool,        // VT_BOOL, -1 or 0
    Str,         // VT_BSTR
    StrRef,      // VT_BSTR|VT_BYREF: the host may write it
};

// The C++ parameter type of each shape; one type per shape, so the type tells the shape.
namespace shape {
using SessionRef = int32_t&;
using Long = int32_t;
using Int = int16_t;
using Bool = bool;
using Str = const String&;
using StrRef = String&;
}  // namespace shape

template <class>
inline constexpr bool kNoShape = false;

template <class P>
constexpr Shape shapeOf() {
    if constexpr (std::is_same_v<P, shape::SessionRef>) {
        return Shape::SessionRef;
    } else if constexpr (std::is_same_v<P, shape::Long>) {
        return Shape::Long;
    } else if constexpr (std::is_same_v<P, shape::Int>) {
        return Shape::Int;
    } else if constexpr (std::is_same_v<P, shape::Bool>) {
        return Shape::Bool;
    } else if constexpr (std::is_same_v<P, shape::Str>) {
        return Shape::Str;
    } else if constexpr (std::is_same_v<P, shape::StrRef>) {
        return Shape::StrRef;
    } else {
        static_assert(kNoShape<P>, "not a parameter type of the host contract");
    }
}

// What a member does to the answers kept for the call (CachedHost.h).
enum class Keeping : uint8_t {
    Asked,       // always reaches the host: the view, call parameters, the menu item, exports
    SceneRead,   // kept until the plug-in writes into the scene
    FileRead,    // kept with the answers of the catalogue file loaded last
    SceneWrite,  // forgets the scene's answers
    FileLoad,    // makes the loaded file's answers current (none when the load fails)
    Session,     // a session begins or ends: forgets everything
};

// X(object, member, keeping, (shape, name)...): the first argument is always the session id.
// Objects: "Pelmora.Appli", "Pelmora.Scene", "Pelmora.Catalog" (works on the catalogue loaded
// last with FileLoad).
#define QUORBEL_APPLI_MEMBERS(X)                                                          \
    X(Appli, StartSessionFromCallParams, Session, (SessionRef, callParamsBlock))          \
    X(Appli, EndSession, Session, (SessionRef, sessionId))                                \
    X(Appli, GetLanguage, SceneRead, (SessionRef, sessionId))                             \
    X(Appli, GetCallParamsInfo, Asked, (SessionRef, sessionId), (Long, code))             \
    X(Appli, InsertMenuItem, Asked, (SessionRef, sessionId), (StrRef, command), (Int, a), \
      (Int, b), (Str, text), (Int, c), (Int, d), (Str, dll), (Str, className), (Str, method))

#define QUORBEL_SCENE_MEMBERS(X)                                                                 \
    X(Scene, ObjectGetInfo, SceneRead, (SessionRef, sessionId), (Long, objectId), (Long, code))  \
    X(Scene, ObjectSetInfo, SceneWrite, (SessionRef, sessionId), (Long, objectId), (Str, value), \
      (Long, code))                                                                              \
    X(Scene, ViewRefresh, Asked, (SessionRef, sessionId))                                        \
    X(Scene, SceneGetObjectsNb, SceneRead, (SessionRef, sessionId))                              \
    X(Scene, SceneGetObjectId, SceneRead, (SessionRef, sessionId), (Long, position))             \
    X(Scene, ObjectGetParentId, SceneRead, (SessionRef, sessionId), (Long, objectId))            \
    X(Scene, ObjectGetChildrenNb, SceneRead, (SessionRef, sessionId), (Long, objectId),          \
      (Int, mode))                                                                               \
    X(Scene, ObjectGetChildId, SceneRead, (SessionRef, sessionId), (Long, objectId),             \
      (Long, position), (Int, mode))                                                             \
    X(Scene, ObjectGetScript, SceneRead, (SessionRef, sessionId), (Long, objectId))              \
    X(Scene, EditReplaceSelection, SceneWrite, (SessionRef, sessionId), (Str, catalog),          \
      (Str, reference), (Int, a), (Long, width), (Long, depth), (Long, height), (Int, b))

#define QUORBEL_CATALOG_MEMBERS(X)                                                               \
    X(Catalog, FileLoad, FileLoad, (SessionRef, sessionId), (Str, path))                         \
    X(Catalog, GetInfo, FileRead, (SessionRef, sessionId), (Long, code))                         \
    X(Catalog, DicoGetStringFromKey, FileRead, (SessionRef, sessionId), (Str, text),             \
      (Str, language))                                                                           \
    X(Catalog, TableGetLinesNb, FileRead, (SessionRef, sessionId), (Long, table), (Int, zero))   \
    X(Catalog, TableGetLineRankFromCode, FileRead, (SessionRef, sessionId), (Long, table),       \
      (Long, zero), (Int, selector), (Str, code), (Bool, flag))                                  \
    X(Catalog, TableGetLineRankFromName, FileRead, (SessionRef, sessionId), (Long, table),       \
      (Long, zero), (Int, selector), (Str, name), (Bool, flag))                                  \
    X(Catalog, TableGetLineInfo, FileRead, (SessionRef, sessionId), (Long, table), (Long, zero), \
      (Long, rank), (Int, column))                                                               \
    X(Catalog, FileExportResource, Asked, (SessionRef, sessionId), (Long, rank), (Str, path))

#define QUORBEL_HOST_MEMBERS(X) \
    QUORBEL_APPLI_MEMBERS(X) QUORBEL_SCENE_MEMBERS(X) QUORBEL_CATALOG_MEMBERS(X)

enum class Member : uint8_t {
#define QUORBEL_MEMBER_ENUMERATOR(object, member, ...) member,
    QUORBEL_HOST_MEMBERS(QUORBEL_MEMBER_ENUMERATOR)
#undef QUORBEL_MEMBER_ENUMERATOR
};

#define QUORBEL_MEMBER_ONE(...) +1
inline constexpr size_t kMemberCount = 0 QUORBEL_HOST_MEMBERS(QUORBEL_MEMBER_ONE);
#undef QUORBEL_MEMBER_ONE

const char* memberName(Member member);

// A member's declaration in a class that implements one of the three objects.
#define QUORBEL_DECLARE_OVERRIDE(object, member, keeping, ...) \
    Variant member(QUORBEL_PARAMS(__VA_ARGS__)) override;

}  // namespace host
