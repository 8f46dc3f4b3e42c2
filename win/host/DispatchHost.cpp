#include "host/DispatchHost.h"

#include <string>

#include "host/DispatchCaller.h"
#include "vb/Errors.h"

namespace quorbel {
namespace {

using host::String;
using host::Variant;
using A = Arg;

template <class... T>
std::vector<Arg> args(T&&... a) {
    std::vector<Arg> v;
    (v.push_back(std::move(a)), ...);
    return v;
}

class Holder {
  public:
    explicit Holder(IDispatch* d) : caller(d), raw(d) {}
    DispatchCaller caller;
    IDispatch* raw;
};

class DAppli : public host::Appli, public Holder {
  public:
    using Holder::Holder;
    Variant StartSessionFromCallParams(int32_t& b) override {
        auto a = args(A::sessionRef(b));
        return caller.call(L"StartSessionFromCallParams", a);
    }
    Variant EndSession(int32_t& s) override {
        auto a = args(A::sessionRef(s));
        return caller.call(L"EndSession", a);
    }
    Variant GetLanguage(int32_t& s) override {
        auto a = args(A::sessionRef(s));
        return caller.call(L"GetLanguage", a);
    }
    Variant GetCallParamsInfo(int32_t& s, int32_t code) override {
        auto a = args(A::sessionRef(s), A::i4(code));
        return caller.call(L"GetCallParamsInfo", a);
    }
    Variant InsertMenuItem(int32_t& s, String& command, int16_t x, int16_t y, const String& text,
                           int16_t c, int16_t d, const String& dll, const String& className,
                           const String& method) override {
        auto a = args(A::sessionRef(s), A::strRef(command), A::i2(x), A::i2(y), A::str(text),
                      A::i2(c), A::i2(d), A::str(dll), A::str(className), A::str(method));
        return caller.call(L"InsertMenuItem", a);
    }
};

class DScene : public host::Scene, public Holder {
  public:
    using Holder::Holder;
    Variant ObjectGetInfo(int32_t& s, int32_t id, int32_t code) override {
        auto a = args(A::sessionRef(s), A::i4(id), A::i4(code));
        return caller.call(L"ObjectGetInfo", a);
    }
    Variant ObjectSetInfo(int32_t& s, int32_t id, const String& value, int32_t code) override {
        auto a = args(A::sessionRef(s), A::i4(id), A::str(value), A::i4(code));
        return caller.call(L"ObjectSetInfo", a);
    }
    Variant ViewRefresh(int32_t& s) override {
        auto a = args(A::sessionRef(s));
        return caller.call(L"ViewRefresh", a);
    }
    Variant SceneGetObjectsNb(int32_t& s) override {
        auto a = args(A::sessionRef(s));
        return caller.call(L"SceneGetObjectsNb", a);
    }
    Variant SceneGetObjectId(int32_t& s, int32_t pos) override {
        auto a = args(A::sessionRef(s), A::i4(pos));
        return caller.call(L"SceneGetObjectId", a);
    }
    Variant ObjectGetParentId(int32_t& s, int32_t id) override {
        auto a = args(A::sessionRef(s), A::i4(id));
        return caller.call(L"ObjectGetParentId", a);
    }
    Variant ObjectGetChildrenNb(int32_t& s, int32_t id, int16_t mode) override {
        auto a = args(A::sessionRef(s), A::i4(id), A::i2(mode));
        return caller.call(L"ObjectGetChildrenNb", a);
    }
    Variant ObjectGetChildId(int32_t& s, int32_t id, int32_t pos, int16_t mode) override {
        auto a = args(A::sessionRef(s), A::i4(id), A::i4(pos), A::i2(mode));
        return caller.call(L"ObjectGetChildId", a);
    }
    Variant ObjectGetScript(int32_t& s, int32_t id) override {
        auto a = args(A::sessionRef(s), A::i4(id));
        return caller.call(L"ObjectGetScript", a);
    }
    Variant EditReplaceSelection(int32_t& s, const String& catalog, const String& reference,
                                 int16_t x, int32_t w, int32_t d, int32_t h, int16_t y) override {
        auto a = args(A::sessionRef(s), A::str(catalog), A::str(reference), A::i2(x), A::i4(w),
                      A::i4(d), A::i4(h), A::i2(y));
        return caller.call(L"EditReplaceSelection", a);
    }
};

class DCatalog : public host::Catalog, public Holder {
  public:
    using Holder::Holder;
    Variant FileLoad(int32_t& s, const String& path) override {
        auto a = args(A::sessionRef(s), A::str(path));
        return caller.call(L"FileLoad", a);
    }
    Variant GetInfo(int32_t& s, int32_t code) override {
        auto a = args(A::sessionRef(s), A::i4(code));
        return caller.call(L"GetInfo", a);
    }
    Variant DicoGetStringFromKey(int32_t& s, const String& text, const String& lang) override {
        auto a = args(A::sessionRef(s), A::str(text), A::str(lang));
        return caller.call(L"DicoGetStringFromKey", a);
    }
    Variant TableGetLinesNb(int32_t& s, int32_t table, int16_t zero) override {
        auto a = args(A::sessionRef(s), A::i4(table), A::i2(zero));
        return caller.call(L"TableGetLinesNb", a);
    }
    Variant TableGetLineRankFromCode(int32_t& s, int32_t t, int32_t z, int16_t sel,
                                     const String& code, bool flag) override {
        auto a =
            args(A::sessionRef(s), A::i4(t), A::i4(z), A::i2(sel), A::str(code), A::boolean(flag));
        return caller.call(L"TableGetLineRankFromCode", a);
    }
    Variant TableGetLineRankFromName(int32_t& s, int32_t t, int32_t z, int16_t sel,
                                     const String& name, bool flag) override {
        auto a =
            args(A::sessionRef(s), A::i4(t), A::i4(z), A::i2(sel), A::str(name), A::boolean(flag));
        return caller.call(L"TableGetLineRankFromName", a);
    }
    Variant TableGetLineInfo(int32_t& s, int32_t t, int32_t z, int32_t rank,
                             int16_t column) override {
        auto a = args(A::sessionRef(s), A::i4(t), A::i4(z), A::i4(rank), A::i2(column));
        return caller.call(L"TableGetLineInfo", a);
    }
    Variant FileExportResource(int32_t& s, int32_t rank, const String& path) override {
        auto a = args(A::sessionRef(s), A::i4(rank), A::str(path));
        return caller.call(L"FileExportResource", a);
    }
};

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
