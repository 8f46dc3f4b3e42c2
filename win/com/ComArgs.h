#pragma once
// By-reference arguments of the COM methods seen as the core's C++ references; each one writes
// its value back to the caller's storage when it goes out of scope.
#include <oaidl.h>
#include <windows.h>

#include "host/DispatchHost.h"
#include "host/Host.h"
#include "vb/Variant.h"

namespace quorbel {

class RefStr {
  public:
    explicit RefStr(BSTR* p);
    ~RefStr();
    vb::String value;

  private:
    BSTR* p_;
};

class RefBool {
  public:
    explicit RefBool(VARIANT_BOOL* p) : value(*p != VARIANT_FALSE), p_(p) {}
    ~RefBool() { *p_ = value ? VARIANT_TRUE : VARIANT_FALSE; }
    bool value;

  private:
    VARIANT_BOOL* p_;
};

template <class Ref, Ref (*wrap)(IDispatch*)>
class RefObj {
  public:
    explicit RefObj(IDispatch** p) : value(wrap(*p)), p_(p) {}
    ~RefObj() {
        IDispatch* now = dispatchOf(value.get());
        if (now == *p_) return;
        if (now) now->AddRef();
        if (*p_) (*p_)->Release();
        *p_ = now;
    }
    Ref value;

  private:
    IDispatch** p_;
};

using RefAppli = RefObj<host::AppliRef, wrapAppli>;
using RefScene = RefObj<host::SceneRef, wrapScene>;
using RefCatalog = RefObj<host::CatalogRef, wrapCatalog>;

inline int32_t& asLong(long* p) {
    return *reinterpret_cast<int32_t*>(p);
}
inline VARIANT_BOOL asBool(bool b) {
    return b ? VARIANT_TRUE : VARIANT_FALSE;
}
void toVariant(const vb::Variant& in, VARIANT* out);
bool anyNull(std::initializer_list<const void*> pointers);

}  // namespace quorbel
