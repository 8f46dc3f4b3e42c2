#pragma once
// Late-bound calls on one host automation object: DISPIDs looked up once per member, arguments
// as the host contract types them, the result as a vb::Variant, failures as runtime errors.
#include <oaidl.h>
#include <windows.h>

#include <map>
#include <vector>

#include "vb/Variant.h"

namespace quorbel {

class Arg {
  public:
    static Arg sessionRef(int32_t& id);
    static Arg i2(int16_t v);
    static Arg i4(int32_t v);
    static Arg boolean(bool v);
    static Arg str(const vb::String& v);
    // A string by reference (VT_BSTR|VT_BYREF): what the host leaves in it is written back to
    // `v` when the argument goes.
    static Arg strRef(vb::String& v);
    Arg(Arg&& o) noexcept;
    Arg(const Arg&) = delete;
    ~Arg();
    VARIANT& get() { return v_; }

  private:
    Arg() { VariantInit(&v_); }
    VARIANT v_;
    BSTR refStr_ = nullptr;  // the storage of a string by reference
    vb::String* target_ = nullptr;
};

class DispatchCaller {
  public:
    explicit DispatchCaller(IDispatch* object);  // takes a reference of its own
    ~DispatchCaller();
    DispatchCaller(const DispatchCaller&) = delete;
    DispatchCaller& operator=(const DispatchCaller&) = delete;

    vb::Variant call(const wchar_t* member, std::vector<Arg>& args);

  private:
    DISPID dispid(const wchar_t* member);
    IDispatch* object_;
    std::map<const wchar_t*, DISPID> ids_;
};

vb::Variant fromVariant(const VARIANT& v);

}  // namespace quorbel
