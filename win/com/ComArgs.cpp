#include "com/ComArgs.h"

#include "platform/Bstr.h"

namespace quorbel {

RefStr::RefStr(BSTR* p) : p_(p) {
    value = fromBstr(*p);
}

RefStr::~RefStr() {
    storeBstr(p_, value);
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
            V_BSTR(out) = newBstr(in.str());
            break;
    }
}

bool anyNull(std::initializer_list<const void*> pointers) {
    for (const void* p : pointers)
        if (!p) return true;
    return false;
}

}  // namespace quorbel
