#include "com/DispatchObject.h"

namespace quorbel {

void unwrapVariantRefs(DISPPARAMS* params) {
    for (UINT i = 0; i < params->cArgs; ++i) {
        VARIANT& arg = params->rgvarg[i];
        if (V_VT(&arg) == (VT_VARIANT | VT_BYREF) && V_VARIANTREF(&arg)) {
            VARIANT* inner = V_VARIANTREF(&arg);
            if (V_VT(inner) & VT_BYREF) {
                arg = *inner;  // already a reference: pass it on
            } else {
                V_VT(&arg) = V_VT(inner) | VT_BYREF;
                V_BYREF(&arg) = &inner->bVal;  // the inner variant's own storage
            }
        }
    }
}

}  // namespace quorbel
