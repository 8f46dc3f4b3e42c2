#include "com/ComArgs.h"

#include "vb/Errors.h"

namespace quorbel {

RefStr::RefStr(BSTR* p) : p_(p) {
    if (*p) value.assign(reinterpret_cast<const char16_t*>(*p), SysStringLen(*p));
}

RefStr::~RefStr() {
    SysReAllocStringLen(p_, reinterpret_cast<const OLECHAR*>(value.data()),
                        static_cast<UINT>(value.size()));
}

void toVariant(const vb::Variant& in, VARIANT* out) {
    VariantInit(out);
    switch (in.type()) {
        case vb::VarType::Empty:
            break;
        case vb::VarType::Null:
            V_VT(out) = VT_NULL;
            break;
        case vb::VarType::Boolean:
            V_VT(out) = VT_BOOL;
            V_BOOL(out) = asBool(in.boolean());
            break;
        case vb::VarType::Integer:
            V_VT(out) = VT_I2;
            V_I2(out) = in.integer();
            break;
        case vb::VarType::Long:
            V_VT(out) = VT_I4;
            V_I4(out) = in.longValue();
            break;
        case vb::VarType::Double:
            V_VT(out) = VT_R8;
            V_R8(out) = in.dbl();
            break;
        case vb::VarType::String:
            V_VT(out) = VT_BSTR;
            V_BSTR(out) = SysAllocStringLen(reinterpret_cast<const OLECHAR*>(in.str().data()),
                                            static_cast<UINT>(in.str().size()));
            if (!V_BSTR(out)) throw vb::RuntimeError(7, u"Out of memory");
            break;
    }
}

bool anyNull(std::initializer_list<const void*> pointers) {
    for (const void* p : pointers)
        if (!p) return true;
    return false;
}

}  // namespace quorbel
