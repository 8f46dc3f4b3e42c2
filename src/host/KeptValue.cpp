#include "host/KeptValue.h"

#include <memory>

namespace host {

KeptValue::KeptValue(const vb::Variant& answer, Texts& texts)
    : type_(static_cast<uint8_t>(answer.type())) {
    switch (answer.type()) {
        case vb::VarType::Empty:
        case vb::VarType::Null:
            break;
        case vb::VarType::Boolean:
            put(answer.boolean());
            break;
        case vb::VarType::Integer:
            put(answer.integer());
            break;
        case vb::VarType::Long:
            put(answer.longValue());
            break;
        case vb::VarType::Double:
            put(answer.dbl());
            break;
        case vb::VarType::String:
            keepText(answer, texts);
            break;
    }
}

void KeptValue::keepText(const vb::Variant& answer, Texts& texts) {
    const vb::String& text = answer.str();
    if (text.size() <= kUnits) {
        length_ = static_cast<uint8_t>(text.size());
        std::memcpy(payload_, text.data(), text.size() * sizeof(char16_t));
        return;
    }
    const vb::Variant::SharedText* shared = answer.sharedText();
    texts.push_back(shared ? *shared : std::make_shared<const vb::String>(text));
    length_ = kInTexts;
    put(static_cast<uint32_t>(texts.size() - 1));
}

vb::Variant KeptValue::answer(const Texts& texts) const {
    switch (static_cast<vb::VarType>(type_)) {
        case vb::VarType::Empty:
            break;
        case vb::VarType::Null:
            return vb::Variant::null();
        case vb::VarType::Boolean:
            return get<bool>();
        case vb::VarType::Integer:
            return get<int16_t>();
        case vb::VarType::Long:
            return get<int32_t>();
        case vb::VarType::Double:
            return get<double>();
        case vb::VarType::String:
            if (length_ == kInTexts) return vb::Variant(texts[get<uint32_t>()]);
            char16_t units[kUnits];
            std::memcpy(units, payload_, length_ * sizeof(char16_t));
            return vb::String(units, length_);
    }
    return vb::Variant();
}

}  // namespace host
