#pragma once
// A VB-style Variant: the value type of every host answer and of the plug-in's own
// value-returning methods. Conversions live in Conversions.h, not here.
#include <cstdint>
#include <memory>
#include <string>
#include <variant>

namespace vb {

using String = std::u16string;

enum class VarType { Empty, Null, Boolean, Integer, Long, Double, String };

class Variant {
  public:
    // A text longer than the string object holds by itself, shared by every copy of the Variant.
    using SharedText = std::shared_ptr<const String>;

    Variant() = default;
    Variant(bool b) : v_(b) {}
    Variant(int16_t i) : v_(i) {}
    Variant(int32_t l) : v_(l) {}
    Variant(double d) : v_(d) {}
    Variant(String s) { setText(std::move(s)); }
    Variant(const char16_t* s) : Variant(String(s)) {}
    explicit Variant(SharedText text) {
        if (text) {
            v_ = std::move(text);
        } else {
            v_ = String();
        }
    }

    static Variant null() {
        Variant v;
        v.v_ = NullTag{};
        return v;
    }

    VarType type() const {
        return std::holds_alternative<SharedText>(v_) ? VarType::String
                                                      : static_cast<VarType>(v_.index());
    }
    bool isEmpty() const { return type() == VarType::Empty; }
    bool isNull() const { return type() == VarType::Null; }

    // Raw access; only valid for the matching type().
    bool boolean() const { return std::get<bool>(v_); }
    int16_t integer() const { return std::get<int16_t>(v_); }
    int32_t longValue() const { return std::get<int32_t>(v_); }
    double dbl() const { return std::get<double>(v_); }
    const String& str() const {
        if (const auto* shared = std::get_if<SharedText>(&v_)) return **shared;
        return std::get<String>(v_);
    }
    // The shared text of a long text; null for any other value.
    const SharedText* sharedText() const { return std::get_if<SharedText>(&v_); }

    bool operator==(const Variant& o) const {
        if (type() != o.type()) return false;
        return type() == VarType::String ? str() == o.str() : v_ == o.v_;
    }

  private:
    struct NullTag {
        bool operator==(const NullTag&) const { return true; }
    };
    // A text longer than the string object holds by itself is shared by every copy of the
    // Variant: copying a host's answer (as a kept read does) never copies or allocates a text.
    void setText(String s) {
        if (s.size() <= String().capacity()) {
            v_ = std::move(s);
        } else {
            v_ = std::make_shared<const String>(std::move(s));
        }
    }
    std::variant<std::monostate, NullTag, bool, int16_t, int32_t, double, String, SharedText> v_;
};

}  // namespace vb
