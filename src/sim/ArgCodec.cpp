#include "sim/ArgCodec.h"

#include <cmath>

#include "vb/Conversions.h"
#include "vb/Errors.h"

namespace sim {

vb::Variant argVariant(const Json& arg) {
    if (arg.is_boolean()) return vb::Variant(arg.get<bool>());
    if (arg.is_number_integer()) {
        const auto n = arg.get<int64_t>();
        if (n >= INT32_MIN && n <= INT32_MAX) return vb::Variant(static_cast<int32_t>(n));
        return vb::Variant(static_cast<double>(n));
    }
    if (arg.is_number()) return vb::Variant(arg.get<double>());
    if (arg.is_string()) return vb::Variant(fromJsonText(arg));
    return vb::Variant();
}

Json variantJson(const vb::Variant& value) {
    switch (value.type()) {
        case vb::VarType::Empty:
        case vb::VarType::Null:
            return nullptr;
        case vb::VarType::Boolean:
            return value.boolean();
        case vb::VarType::Integer:
            return value.integer();
        case vb::VarType::Long:
            return value.longValue();
        case vb::VarType::Double:
            return value.dbl();
        case vb::VarType::String:
            return toJsonText(value.str());
    }
    return nullptr;
}

vb::String ArgCodec<vb::String>::in(const Json& arg, host::Factory&) {
    return vb::CStr(argVariant(arg));
}

int32_t ArgCodec<int32_t>::in(const Json& arg, host::Factory&) {
    return vb::CLng(argVariant(arg));
}

int16_t ArgCodec<int16_t>::in(const Json& arg, host::Factory&) {
    return vb::CInt(argVariant(arg));
}

bool ArgCodec<bool>::in(const Json& arg, host::Factory&) {
    if (arg.is_null()) return false;
    return vb::CBool(argVariant(arg));
}

std::shared_ptr<host::HostObject> objectArg(const Json& arg, host::Factory& factory) {
    if (arg.is_null()) return nullptr;
    if (!arg.is_string()) throw vb::RuntimeError(vb::err::kTypeMismatch);
    return factory.CreateObject(fromJsonText(arg));
}

Json objectJson(const host::HostObject* object) {
    if (!object) return nullptr;
    if (dynamic_cast<const host::Appli*>(object)) return toJsonText(host::kProgIdAppli);
    if (dynamic_cast<const host::Scene*>(object)) return toJsonText(host::kProgIdScene);
    if (dynamic_cast<const host::Catalog*>(object)) return toJsonText(host::kProgIdCatalog);
    return "Object";
}

template <class T>
std::shared_ptr<T> ArgCodec<std::shared_ptr<T>>::in(const Json& arg, host::Factory& factory) {
    auto object = objectArg(arg, factory);
    if (!object) return nullptr;
    auto typed = std::dynamic_pointer_cast<T>(object);
    if (!typed) throw vb::RuntimeError(vb::err::kTypeMismatch);
    return typed;
}

template struct ArgCodec<host::AppliRef>;
template struct ArgCodec<host::SceneRef>;
template struct ArgCodec<host::CatalogRef>;

}  // namespace sim
