#pragma once
// A VB-style Variant: the value type of every host answer and of the plug-in's own
// value-returning methods. Conversions live in Conversions.h, not here.
#include <cstdint>
#include <string>
#include <variant>

namespace vb {

using String = std::u16string;

enum class VarType { Empty, Null, Boolean, Integer, Long, Double, String };

class Variant {
  public:
    Variant() = default;
    Variant(bool b) : v_(b) {}
    Variant(int16_t i) : v_(i) {}
    Variant(int32_t l) : v_(l) {}
    Variant(double d) : v_(d) {}
    Variant(String s) : v_(std::move(s)) {}
    Variant(const char16_t* s) : v_(String(s)) {}

    static Variant null() {
        Variant v;
        v.v_ = NullTag{};
        return v;
    }

    VarType type() const { return static_cast<VarType>(v_.index()); }
    bool isEmpty() const { return type() == VarType::Empty; }
    bool isNull() const { return type() == VarType::Null; }

    // Raw access; only valid for the matching type().
    bool boolean() const { return std::get<bool>(v_); }
    int16_t integer() const { return std::get<int16_t>(v_); }
    int32_t longValue() const { return std::get<int32_t>(v_); }
    double dbl() const { return std::get<double>(v_); }
    const String& str() const { return std::get<String>(v_); }

    bool operator==(const Variant& o) const { return v_ == o.v_; }

  private:
    struct NullTag {
        bool operator==(const NullTag&) const { return true; }
    };
    std::variant<std::monostate, NullTag, bool, int16_t, int32_t, double, String> v_;
};

}  // namespace vb
