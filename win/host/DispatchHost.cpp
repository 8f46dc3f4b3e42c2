#include "host/DispatchHost.h"

#include <string>
#include <type_traits>

#include "host/DispatchCaller.h"
#include "vb/Errors.h"

namespace quorbel {
namespace {

using host::String;
using host::Variant;

// An argument as the host contract types it, told by its parameter type (one per shape).
template <class P>
Arg argOf(P value) {
    constexpr host::Shape shape = host::shapeOf<P>();
    if constexpr (shape == host::Shape::SessionRef) {
        return Arg::sessionRef(value);
    } else if constexpr (shape == host::Shape::Long) {
        return Arg::i4(value);
    } else if constexpr (shape == host::Shape::Int) {
        return Arg::i2(value);
    } else if constexpr (shape == host::Shape::Bool) {
        return Arg::boolean(value);
    } else if constexpr (shape == host::Shape::Str) {
        return Arg::str(value);
    } else {
        return Arg::strRef(value);
    }
}

template <class... A>
std::vector<Arg> args(A&&... a) {
    std::vector<Arg> v;
    (v.push_back(std::move(a)), ...);
    return v;
}

Variant callByName(DispatchCaller& caller, const wchar_t* member, std::vector<Arg> arguments) {
    return caller.call(member, arguments);
}

class Holder {
  public:
    explicit Holder(IDispatch* d) : caller(d), raw(d) {}
    DispatchCaller caller;
    IDispatch* raw;
};

#define QUORBEL_DISPATCH_ARG(s, n) argOf<::host::shape::s>(n)
#define QUORBEL_CALL_BY_NAME(object, member, keeping, ...)                                       \
    Variant member(QUORBEL_PARAMS(__VA_ARGS__)) override {                                       \
        return callByName(caller, L"" #member,                                                   \
                          args(QUORBEL_EACH(QUORBEL_DISPATCH_ARG, QUORBEL_COMMA, __VA_ARGS__))); \
    }

class DAppli : public host::Appli, public Holder {
  public:
    using Holder::Holder;
    QUORBEL_APPLI_MEMBERS(QUORBEL_CALL_BY_NAME)
};

class DScene : public host::Scene, public Holder {
  public:
    using Holder::Holder;
    QUORBEL_SCENE_MEMBERS(QUORBEL_CALL_BY_NAME)
};

class DCatalog : public host::Catalog, public Holder {
  public:
    using Holder::Holder;
    QUORBEL_CATALOG_MEMBERS(QUORBEL_CALL_BY_NAME)
};

#undef QUORBEL_CALL_BY_NAME
#undef QUORBEL_DISPATCH_ARG

IDispatch* createByProgId(const String& progId) {
    std::wstring name(progId.begin(), progId.end());
    CLSID clsid;
    IDispatch* d = nullptr;
    if (FAILED(CLSIDFromProgID(name.c_str(), &clsid)) ||
        FAILED(CoCreateInstance(clsid, nullptr, CLSCTX_ALL, IID_IDispatch,
                                reinterpret_cast<void**>(&d))))
        throw vb::RuntimeError(vb::err::kCantCreateObject);
    return d;
}

template <class T>
std::shared_ptr<T> adopt(IDispatch* d) {
    std::shared_ptr<T> obj;
    try {
        obj = std::make_shared<T>(d);
    } catch (...) {
        d->Release();  // no host object may stay referenced after a failed creation
        throw;
    }
    d->Release();  // the caller now holds the only reference
    return obj;
}

}  // namespace

std::shared_ptr<host::HostObject> DispatchFactory::CreateObject(const vb::String& progId) {
    IDispatch* d = createByProgId(progId);
    if (progId == host::kProgIdAppli) return adopt<DAppli>(d);
    if (progId == host::kProgIdScene) return adopt<DScene>(d);
    if (progId == host::kProgIdCatalog) return adopt<DCatalog>(d);
    d->Release();
    throw vb::RuntimeError(vb::err::kCantCreateObject);
}

IDispatch* dispatchOf(const host::HostObject* object) {
    auto h = dynamic_cast<const Holder*>(object);
    return h ? h->raw : nullptr;
}

host::AppliRef wrapAppli(IDispatch* d) {
    return d ? std::make_shared<DAppli>(d) : nullptr;
}
host::SceneRef wrapScene(IDispatch* d) {
    return d ? std::make_shared<DScene>(d) : nullptr;
}
host::CatalogRef wrapCatalog(IDispatch* d) {
    return d ? std::make_shared<DCatalog>(d) : nullptr;
}

}  // namespace quorbel
