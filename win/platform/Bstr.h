#pragma once
// Texts and error numbers at the COM edge. A BSTR is UTF-16 with its length in front, like
// vb::String, so a text crosses by length, NULs and all, with nothing converted; and a VB
// runtime error travels as a FACILITY_CONTROL code that carries its number.
#include <oleauto.h>
#include <windows.h>

#include "vb/Errors.h"
#include "vb/Variant.h"

namespace quorbel {

// A null BSTR is the empty text, as VB reads it.
inline vb::String fromBstr(BSTR b) {
    return vb::String(reinterpret_cast<const char16_t*>(b ? b : L""), b ? SysStringLen(b) : 0);
}

// Reads and frees a BSTR this side received.
inline vb::String takeBstr(BSTR b) {
    vb::String text = fromBstr(b);
    SysFreeString(b);
    return text;
}

// Null when memory is short; for callers that must not raise.
inline BSTR toBstr(const vb::String& s) {
    return SysAllocStringLen(reinterpret_cast<const OLECHAR*>(s.data()),
                             static_cast<UINT>(s.size()));
}

// Raises VB's "Out of memory" when the copy cannot be made.
inline BSTR newBstr(const vb::String& s) {
    BSTR b = toBstr(s);
    if (!b) throw vb::RuntimeError(7, u"Out of memory");
    return b;
}

// Puts a text back into a by-reference BSTR the caller owns.
inline void storeBstr(BSTR* target, const vb::String& s) {
    SysReAllocStringLen(target, reinterpret_cast<const OLECHAR*>(s.data()),
                        static_cast<UINT>(s.size()));
}

// The failure code of VB runtime error `number`, and back.
inline HRESULT vbErrorCode(int number) {
    return MAKE_HRESULT(1, FACILITY_CONTROL, number & 0xFFFF);
}
inline bool isVbErrorCode(HRESULT code) {
    return HRESULT_FACILITY(code) == FACILITY_CONTROL;
}

}  // namespace quorbel
