#pragma once
// Scenario arguments <-> the typed parameters of the plug-in's methods, converted as a late-bound
// call converts VARIANTs: numbers and text coerce by VB rules, objects are ProgIDs or null.
#include <cstdint>
#include <string>

#include "host/Factory.h"
#include "sim/Json.h"
#include "vb/Variant.h"

namespace sim {

// The VB value of a scenario argument (null is Empty).
vb::Variant argVariant(const Json& arg);
// A method's result (or by-reference value) as the transcript writes it.
Json variantJson(const vb::Variant& value);

template <class T>
struct ArgCodec;

template <>
struct ArgCodec<vb::String> {
    static vb::String in(const Json& arg, host::Factory&);
    static Json out(const vb::String& value) { return toJsonText(value); }
};

template <>
struct ArgCodec<int32_t> {
    static int32_t in(const Json& arg, host::Factory&);
    static Json out(int32_t value) { return value; }
};

template <>
struct ArgCodec<int16_t> {
    static int16_t in(const Json& arg, host::Factory&);
    static Json out(int16_t value) { return value; }
};

template <>
struct ArgCodec<bool> {
    static bool in(const Json& arg, host::Factory&);
    static Json out(bool value) { return value; }
};

// Objects: a ProgID creates the host object; null is Nothing.
std::shared_ptr<host::HostObject> objectArg(const Json& arg, host::Factory& factory);
Json objectJson(const host::HostObject* object);

template <class T>
struct ArgCodec<std::shared_ptr<T>> {
    static std::shared_ptr<T> in(const Json& arg, host::Factory& factory);
    static Json out(const std::shared_ptr<T>& value) { return objectJson(value.get()); }
};

}  // namespace sim
